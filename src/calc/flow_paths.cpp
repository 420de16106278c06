#include "calc/flow_paths.h"

#include <cstdlib>
#include <span>

namespace zeb {
namespace {

void CheckRange(int value, int first, int last) {
  if (value < first || value > last) throw RuntimeFailure(failure::kSubscriptOutOfRange);
}

void CheckLoops(const Project& project) {
  for (int loop = 1; loop <= project.LoopCount; ++loop) {
    for (int i = project.LoopFirst[loop]; i <= project.LoopLast[loop]; ++i) {
      CheckRange(std::abs(project.LoopPipes[i]), 1, project.PipeCount);
    }
  }
}

}  // namespace

int PipeOfHead(const Project& project, int head) {
  return static_cast<int>(project.HeadPipe[head]);
}

int NodeOfHead(const Project& project, int head) {
  if (head == 0) return 0;
  return project.PipeEndNode[PipeOfHead(project, head)];
}

void CheckFlowPaths(const Project& project) {
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    CheckRange(project.PipeUpstream[pipe], 0, pipe - 1);
  }
  for (int head = 1; head <= project.HeadCount; ++head) {
    CheckRange(PipeOfHead(project, head), 1, project.PipeCount);
  }
  CheckLoops(project);
}

void AddAlongPath(Project& project, int pipe, float flow) {
  const std::span<const Int16> upstream = project.PipeUpstream.Slots();
  const std::span<float> flows = project.PipeFlow.Slots();
  for (int at = pipe; at > 0; at = upstream[at]) flows[at] += flow;
}

double SumAlongPath(const Project& project, int pipe, double start) {
  const std::span<const Int16> upstream = project.PipeUpstream.Slots();
  const std::span<const float> drops = project.PipeDrop.Slots();
  double sum = start;
  for (int at = pipe; at > 0; at = upstream[at]) sum += drops[at];
  return sum;
}

}  // namespace zeb
