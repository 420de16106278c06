#pragma once

#include "check/check_run.h"

namespace zeb {

// Reports pipes on the way to a head that are fed by a smaller one; not in a network of more than
// three loops, where feeding has no one direction.
void CheckUpstreamSizes(CheckRun& run);

}  // namespace zeb
