#pragma once

#include "check/check_run.h"

namespace zeb {

// Warns of two pipes that leave a junction of three in the same direction.
void FindDuplicateDirections(CheckRun& run);

}  // namespace zeb
