#pragma once

#include "check/check_run.h"

namespace zeb {

// Writes the text that tells what the input amounts to, and finds the pump in force.
void BuildCheckSummary(CheckRun& run);

}  // namespace zeb
