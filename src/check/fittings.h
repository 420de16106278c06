#pragma once

#include "check/check_run.h"

namespace zeb {

// Counts the elbows and tees that the geometry makes, each on the pipe that it is charged to.
void CountFittings(CheckRun& run);

// Adds the entered extra fittings, and warns of valves and fittings without an equivalent length
// at their pipe's size.
void AddExtraFittings(CheckRun& run);

}  // namespace zeb
