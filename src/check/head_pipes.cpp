#include "check/head_pipes.h"

#include <cmath>

#include "check/direction_code.h"
#include "check/node_checks.h"
#include "services/number_text.h"

namespace zeb {
namespace {

constexpr int kWarningCode = 14;
constexpr int kLargestHeadPipe = 65;  // mm

bool RunsInPlan(const Project& project, int pipe) {
  const float direction = project.PipeDirection[pipe];
  return direction >= 0.0F && direction <= 360.0F && std::fabs(project.PipeSlope[pipe]) < 2.0F;
}

void CheckFeed(Project& project, int pipe) {
  const int previous = project.PipePrevious[pipe];
  const bool from_vertical_head =
      IsVertical(project.PipeDirection[previous]) && project.PipeHead[previous] != 0;
  if (!from_vertical_head || RunsInPlan(project, pipe)) return;
  WarnOfPipe(project, pipe, kWarningCode,
             "Pipe" + SignedText(project.PipeStartNode[pipe]) +
                 SignedText(project.PipeEndNode[pipe]) + " is fed from a vertical head");
}

void CheckHeadSize(Project& project, int pipe) {
  if (project.PipeHead[pipe] == 0 || project.PipeSize[pipe] <= kLargestHeadPipe) return;
  WarnOfPipe(project, pipe, kWarningCode,
             "Head at node" + SignedText(project.PipeEndNode[pipe]) + " is on a" +
                 SignedText(project.PipeSize[pipe]) + " mm pipe");
}

}  // namespace

void CheckHeadPipes(CheckRun& run) {
  for (int pipe = 1; pipe <= run.pipes; ++pipe) CheckFeed(run.project, pipe);
  if (run.options.no_head_size_check) return;
  for (int pipe = 1; pipe <= run.pipes; ++pipe) CheckHeadSize(run.project, pipe);
}

}  // namespace zeb
