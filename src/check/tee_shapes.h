#pragma once

#include "check/check_run.h"

namespace zeb {

// Reports pipes that leave a junction at an angle for which there is no tee.
void CheckTeeShapes(CheckRun& run);

}  // namespace zeb
