#include "check/loop_closing.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "check/correction.h"
#include "check/direction_code.h"
#include "services/number_text.h"

namespace zeb {
namespace {

struct Offset {
  float x;
  float y;
  float z;
};

// Below this a plan difference is none, m.
constexpr float kNoOffset = 0.02F;

float DirectionOf(const Offset& offset, float entered) {
  const float across = std::fabs(offset.y);
  float direction = entered;
  if (across > kNoOffset) {
    const double ratio = static_cast<double>(offset.x) / offset.y;
    double angle = std::atan(ratio) / kDegToRad;
    if (offset.y < 0.0F) angle += 180.0;
    if (offset.y > 0.0F && offset.x < 0.0F) angle += 360.0;
    direction = static_cast<float>(angle);
    if (direction >= 360.0F) direction = 0.0F;
  } else if (across < kNoOffset) {
    direction = offset.x > 0.0F ? 90.0F : 270.0F;
    if (std::fabs(offset.x) < kNoOffset) {
      direction = offset.z < 0.0F ? kDirectionDown : kDirectionUp;
    }
  }
  return std::fabs(direction - 360.0F) <= 0.1F ? 0.0F : direction;
}

float LengthOf(const Offset& offset, bool vertical) {
  const double plan =
      static_cast<double>(offset.x) * offset.x + static_cast<double>(offset.y) * offset.y;
  const double rise = vertical ? static_cast<double>(offset.z) * offset.z : 0.0;
  return std::max(static_cast<float>(std::sqrt(plan + rise)), 0.01F);
}

bool Differs(float value, float entered, float tolerance) {
  return std::fabs(value - entered) > tolerance;
}

bool Fits(const ClosingLine& line, const PipeInput& input) {
  return !Differs(line.distance, input.length, 0.1F) &&
         !Differs(line.direction, input.direction, 1.0F) && !Differs(line.slope, input.slope, 1.0F);
}

std::string PointText(const Project& project, int pipe) {
  return FixedNumber(project.PipeX[pipe], 9, 3) + FixedNumber(project.PipeY[pipe], 9, 3) +
         FixedNumber(project.PipeZ[pipe], 9, 3);
}

std::string NodeText(int node, int width) {
  return FixedNumber(static_cast<float>(node), width, 0);
}

void ReportNotClosing(CheckRun& run, PipeInput& input, const ClosingLine& line) {
  const Project& project = run.project;
  const int first = input.loop_close;
  const int first_start = project.PipeStartNode[first];
  ReportCorrection(
      run, input, Fault::kNotClosing,
      {{"first start", SignedText(first_start)},
       {"first pipe", NodeText(first_start, 5) + NodeText(project.PipeEndNode[first], 5)},
       {"first point", PointText(project, first)},
       {"start", NodeText(input.start, 8)},
       {"start point", PointText(project, input.upstream)},
       {"length", FixedNumber(input.length, 9, 3)},
       {"direction", FixedNumber(input.direction, 5, 1)},
       {"slope", FixedNumber(input.slope, 5, 1)},
       {"new length", FixedNumber(line.distance, 9, 3)},
       {"new direction", FixedNumber(line.direction, 6, 1)},
       {"new slope", FixedNumber(line.slope, 5, 1)}});
}

}  // namespace

ClosingLine LineBetween(const Project& project, int from, int to, float entered) {
  const Offset offset{.x = project.PipeX[to] - project.PipeX[from],
                      .y = project.PipeY[to] - project.PipeY[from],
                      .z = project.PipeZ[to] - project.PipeZ[from]};
  ClosingLine line;
  line.direction = DirectionOf(offset, entered);
  const bool vertical = IsVertical(line.direction);
  line.distance = LengthOf(offset, vertical);
  if (!vertical) {
    const double tangent = static_cast<double>(offset.z) / line.distance;
    line.slope = static_cast<float>(std::atan(tangent) / kDegToRad);
  }
  return line;
}

void FitClosingPipe(CheckRun& run, PipeInput& input) {
  if (input.loop_close == 0) return;
  const ClosingLine line =
      LineBetween(run.project, input.upstream, input.loop_close, input.direction);
  if (!Fits(line, input)) ReportNotClosing(run, input, line);
  input.direction = line.direction;
  input.slope = line.slope;
  input.rise = static_cast<float>(input.plan * std::tan(line.slope * kDegToRad));
}

}  // namespace zeb
