#include "check/coordinates.h"

#include <algorithm>
#include <span>

namespace zeb {
namespace {

constexpr float kHeadOffset = 0.001F;  // m, so that a head does not hide its node

// Returns how far the axis was moved, 0 or negative.
float ShiftAxis(std::span<float> slots, float& lowest, float& highest) {
  const auto [low, high] = std::minmax_element(slots.begin(), slots.end());
  lowest = *low;
  highest = *high;
  if (lowest >= 0.0F) return 0.0F;
  const float shift = lowest;
  for (float& coordinate : slots) coordinate -= shift;
  highest -= shift;
  lowest = 0.0F;
  return shift;
}

void PlaceHeads(Project& project, int heads) {
  for (int head = 1; head <= heads; ++head) {
    const int pipe = static_cast<int>(project.HeadPipe[head]);
    project.HeadX[head] = project.PipeX[pipe] + kHeadOffset;
    project.HeadY[head] = project.PipeY[pipe] + kHeadOffset;
  }
}

}  // namespace

void PlaceCoordinates(CheckRun& run) {
  Project& project = run.project;
  const auto used = static_cast<std::size_t>(run.pipes) + 1;
  ShiftAxis(project.PipeX.Slots().first(used), project.MinX, project.MaxX);
  ShiftAxis(project.PipeY.Slots().first(used), project.MinY, project.MaxY);
  project.ZOffset = ShiftAxis(project.PipeZ.Slots().first(used), project.MinZ, project.MaxZ);
  PlaceHeads(project, run.heads);

  project.PipeCount = run.pipes;
  project.HeadCount = run.heads;
  project.WarningCount = project.CheckErrorCount;
}

}  // namespace zeb
