#pragma once

#include "check/check_run.h"

namespace zeb {

// Finds the extents of the network, moves it, the source included, so that no coordinate is below
// 0, and places the heads. Stores the counts of what was read.
void PlaceCoordinates(CheckRun& run);

}  // namespace zeb
