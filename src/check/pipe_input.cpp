#include "check/pipe_input.h"

#include <cmath>

#include "check/direction_code.h"

namespace zeb {

void SetPlanAndRise(PipeInput& input) {
  const double length = input.length;
  const double slope = std::fabs(input.slope);
  if (slope > 45.0) {
    input.rise = input.slope < 0.0F ? -input.length : input.length;
    input.plan = static_cast<float>(length * std::tan((90.0 - slope) * kDegToRad));
  } else {
    input.plan = input.length;
    input.rise = static_cast<float>(length * std::tan(input.slope * kDegToRad));
  }
}

void PlacePipe(Project& project, int pipe, float direction, float plan, float rise) {
  if (IsVertical(direction)) plan = 0.0F;
  const int upstream = project.PipeUpstream[pipe];
  const double angle = direction * kDegToRad;
  project.PipeX[pipe] = static_cast<float>(plan * std::sin(angle) + project.PipeX[upstream]);
  project.PipeY[pipe] = static_cast<float>(plan * std::cos(angle) + project.PipeY[upstream]);
  project.PipeZ[pipe] = project.PipeZ[upstream] + rise;
  project.PipeRise[pipe] = rise;
  const double plan_squared = static_cast<double>(plan) * plan;
  const double rise_squared = static_cast<double>(rise) * rise;
  project.PipeLength[pipe] = static_cast<float>(std::sqrt(plan_squared + rise_squared));
}

}  // namespace zeb
