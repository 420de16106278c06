#pragma once

#include "check/check_run.h"

namespace zeb {

// Sums the head areas, and finds the extremes over the heads that are no special discharge.
void SumUpHeads(CheckRun& run);

}  // namespace zeb
