#pragma once

#include "services/session.h"

namespace zeb {

// Writes the pipe data tables back to the file they were read from, keeping a copy of the old file
// beside it, and tells the user. C and its factor are written as the file had them, whatever the
// rules in force made of them. Fails as the file system does; the old file stands then.
void WritePipeData(Session& session);

}  // namespace zeb
