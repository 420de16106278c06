#pragma once

#include "services/session.h"

namespace zeb {

// Writes the summary of a calculation to CalcSummary and its one line to ResultLine. True when the
// balance is within its limits; otherwise a message says so, and so do both texts.
bool BuildCalcSummary(Session& session);

// Shows the summary of the last calculation.
void ShowCalcSummary(Session& session);

}  // namespace zeb
