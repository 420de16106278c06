#pragma once

#include "services/session.h"

namespace zeb {

// Asks, and then makes every pipe unsized in the tables and in its line. False when the user does
// not want it.
bool ZeroAllPipes(Session& session);

// The menu command of the same; it reads the project again.
void mnuCalcZeroPipe_Click(Session& session);

// Writes the sizes that a calculation chose for unsized pipes into their lines, if the user wants
// it, and reads the project again.
void mnuCalcSetPipe_Click(Session& session);

}  // namespace zeb
