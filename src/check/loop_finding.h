#pragma once

#include "check/check_run.h"

namespace zeb {

// Lists the pipes of the loop behind each closing pipe: back from its end against the flow, marked
// by a minus sign, to where the two ways part, and along the other way to the node they share.
// Fails when the lists overrun their table.
void FindLoops(CheckRun& run);

}  // namespace zeb
