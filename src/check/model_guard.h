#pragma once

#include "check/check_run.h"

namespace zeb {

// Enables the commands that calculate, add, copy, display and save while the network is within
// MaxPipes, MaxHeads and MaxLoops. Beyond them the commands are disabled, and a box tells why
// unless the check is silent.
void GuardModelSize(const CheckRun& run);

}  // namespace zeb
