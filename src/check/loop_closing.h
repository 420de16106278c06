#pragma once

#include "check/check_run.h"
#include "check/pipe_input.h"

namespace zeb {

// A straight line from one known point to another.
struct ClosingLine {
  float distance = 0.0F;   // in plan, or along a vertical; at least 0.01 m
  float direction = 0.0F;  // degrees from north; 999 up, -999 down
  float slope = 0.0F;      // degrees, up positive; 0 for a vertical
};

// The line from the end of pipe `from` to the end of pipe `to`. `entered` is the direction where
// the two points leave it open.
[[nodiscard]] ClosingLine LineBetween(const Project& project, int from, int to, float entered);

// Gives a pipe that closes a loop the direction and slope of the line between its two ends, and the
// rise that follows. The entered length stays. Reports a pipe that was entered more than 0.1 m or
// 1 degree off that line.
void FitClosingPipe(CheckRun& run, PipeInput& input);

}  // namespace zeb
