#pragma once

#include "check/check_run.h"
#include "check/pipe_input.h"

namespace zeb {

// Where a sloping pipe meets the previous one at a swing joint, lengths are given to the joint and
// not to the pipe's axis. Corrects the plan length and rise of the pipe, or with the rework option
// the previous pipe, which is then placed anew.
void CorrectSwingJoint(const CheckRun& run, PipeInput& input);

}  // namespace zeb
