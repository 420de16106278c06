#pragma once

#include "check/check_run.h"

namespace zeb {

// Sums the pipes up: lengths by type and size, extremes of size, length and node, volume, hydrants
// and orifice plates. A hydrant on a pipe with a head is dropped.
void SumUpPipes(CheckRun& run);

}  // namespace zeb
