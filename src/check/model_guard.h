#pragma once

#include "check/check_run.h"

namespace zeb {

// Sets MaxPipes, MaxHeads and MaxLoops, once at start-up.
void SetModelLimits(Project& project);

// Enables the commands that calculate, add, copy, display and save while the network is within the
// limits. Beyond them the commands are disabled, and a box tells why unless the check is silent.
void GuardModelSize(const CheckRun& run);

}  // namespace zeb
