#pragma once

#include "check/check_run.h"

namespace zeb {

// Reports each pair of heads at the same node.
void FindDuplicateHeads(CheckRun& run);

}  // namespace zeb
