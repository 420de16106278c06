#include "check/swing_joint.h"

#include <cmath>

namespace zeb {
namespace {

// The pipe and the previous one, which is the previous slot.
struct Joint {
  int previous;
  float previous_slope;
  float slope_sum;  // of both sizes, degrees

  [[nodiscard]] bool IsRightAngle() const { return slope_sum > 89.0F && slope_sum < 91.0F; }
  [[nodiscard]] bool IsWholeRightAngle() const { return std::floor(slope_sum) == 90.0F; }
};

bool IsReverseRun(const Project& project, const PipeInput& input, const Joint& joint) {
  const float turn = std::floor(project.PipeDirection[joint.previous] - input.direction);
  return std::fabs(turn) == 180.0F && joint.previous_slope > 45.0F &&
         project.PipeEndNode[joint.previous] == input.start && joint.IsRightAngle();
}

bool IsStraightRun(const Project& project, const PipeInput& input, const Joint& joint) {
  const float turn = std::floor(project.PipeDirection[joint.previous] - input.direction);
  return turn == 0.0F && input.slope > 0.0F && input.slope < 45.0F && joint.IsWholeRightAngle();
}

void LengthenRun(const Project& project, PipeInput& input, const Joint& joint) {
  const double tangent = std::tan(input.slope * kDegToRad);
  input.plan = static_cast<float>(input.plan + project.PipeRise[joint.previous] * tangent);
  input.rise = static_cast<float>(input.plan * tangent);
}

bool IsReworkJoint(const Project& project, const PipeInput& input, const Joint& joint) {
  if (!joint.IsRightAngle()) return false;
  const float turn = std::floor(input.direction - project.PipeDirection[joint.previous]);
  const bool straight = turn == 0.0F && joint.IsWholeRightAngle() && joint.previous_slope < 0.0F;
  return (straight && input.slope > 45.0F) || (turn == 180.0F && input.slope < -45.0F);
}

void ReworkPrevious(Project& project, const PipeInput& input, const Joint& joint) {
  const double tangent = std::tan(joint.previous_slope * kDegToRad);
  const double length = project.PipeLength[joint.previous];
  const double rise = project.PipeRise[joint.previous];
  const double old_plan = std::sqrt(length * length - rise * rise);
  const auto plan = static_cast<float>(old_plan + input.rise * tangent);
  PlacePipe(project, joint.previous, project.PipeDirection[joint.previous], plan,
            static_cast<float>(plan * tangent));
}

}  // namespace

void CorrectSwingJoint(const CheckRun& run, PipeInput& input) {
  if (run.options.no_length_correction) return;
  Project& project = run.project;
  const int previous = input.slot - 1;
  const float previous_slope = project.PipeSlope[previous];
  const Joint joint{.previous = previous,
                    .previous_slope = previous_slope,
                    .slope_sum = std::fabs(input.slope) + std::fabs(previous_slope)};
  if (IsReverseRun(project, input, joint) || IsStraightRun(project, input, joint)) {
    LengthenRun(project, input, joint);
  }
  if (run.options.rework_previous && IsReworkJoint(project, input, joint)) {
    ReworkPrevious(project, input, joint);
  }
}

}  // namespace zeb
