#pragma once

#include "check/check_run.h"

namespace zeb {

// Warns of pipes that are fed from the head of a vertical pipe, and of heads on large pipes.
void CheckHeadPipes(CheckRun& run);

}  // namespace zeb
