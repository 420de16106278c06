#pragma once

#include "check/check_run.h"
#include "check/fault_texts.h"
#include "check/pipe_input.h"

namespace zeb {

// Reports a fault of the pipe that is being read and keeps the fault's code for it; the fields `i`,
// `a` and `b` are the pipe's own. Ends the pass when the user stops.
void ReportCorrection(CheckRun& run, PipeInput& input, Fault fault, FaultFields fields = {});

}  // namespace zeb
