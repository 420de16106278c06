#pragma once

#include "check/check_run.h"

namespace zeb {

// Reads the pipe lines into the pipe and head tables, places each pipe behind its feed and reports
// what had to be corrected. Composes clean lines anew and marks the others, if the mode says so.
void ReadPipeLines(CheckRun& run);

}  // namespace zeb
