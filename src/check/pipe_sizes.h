#pragma once

#include <string_view>

#include "check/check_run.h"
#include "check/pipe_input.h"

namespace zeb {

// Takes the pipe type of a word, by default that of the previous pipe.
void TakePipeType(CheckRun& run, PipeInput& input, std::string_view word);

// Finds the size's column in the pipe data. A size that the pipe type does not have becomes the
// nearest one that it has.
void FindPipeSize(CheckRun& run, PipeInput& input);

}  // namespace zeb
