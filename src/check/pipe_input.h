#pragma once

#include "model/project.h"

namespace zeb {

// One pipe while its line is read.
struct PipeInput {
  int slot = 0;
  int line = 0;
  int code = 0;  // of the last correction, 0 for none

  int start = 0;
  int end = 0;
  int upstream = 0;    // the first pipe into the start node
  int loop_close = 0;  // the first pipe into the end node, when that is another one

  int size = 0;        // nominal, mm
  int size_index = 0;  // 0 none
  int type = 0;
  int valve = 0;

  float length = 0.0F;     // as entered, m: plan length, or the rise above 45 degrees of slope
  float direction = 0.0F;  // degrees from north; 999 up, -999 down
  float slope = 0.0F;      // degrees, up positive
  float plan = 0.0F;       // plan length, m
  float rise = 0.0F;       // m
};

// The program's own pi, on which all its geometry rests.
inline constexpr double kDegToRad = 3.1415926 / 180.0;

// Sets the plan length and the rise from the entered length and slope.
void SetPlanAndRise(PipeInput& input);

// Sets the end point, length and rise of a pipe from the end of its upstream pipe. A vertical
// direction has no plan length.
void PlacePipe(Project& project, int pipe, float direction, float plan, float rise);

}  // namespace zeb
