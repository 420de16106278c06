#include "calc/design_area.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

#include "calc/flow_paths.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kLeastGridLoops = 4;

// The first pipe upstream of a head that carries more or less than the head takes; 0 when none
// does.
int JunctionPipe(const Project& project, int head) {
  int pipe = PipeOfHead(project, head);
  while (pipe > 0 && std::fabs(project.PipeFlow[pipe] - project.HeadFlow[head]) <= 0.1F) {
    pipe = project.PipeUpstream[pipe];
  }
  return pipe;
}

bool IsInLoop(const Project& project, int pipe) {
  for (int i = 1; i <= project.LoopListLength; ++i) {
    if (std::abs(project.LoopPipes[i]) == pipe) return true;
  }
  return false;
}

float FlowAtStartOfRange(const Project& project, int junction) {
  int pipe = junction;
  for (int up = project.PipeUpstream[pipe];
       up > 0 && project.PipeSize[up] == project.PipeSize[junction];
       up = project.PipeUpstream[pipe]) {
    pipe = up;
  }
  return project.PipeFlow[pipe];
}

float FlowFromOtherEnd(const Project& project, int junction) {
  float largest = 0.0F;
  std::vector<bool> below(static_cast<std::size_t>(project.PipeCount) + 1);
  for (int pipe = junction + 1; pipe <= project.PipeCount; ++pipe) {
    const int up = project.PipeUpstream[pipe];
    below.at(pipe) = up == junction || below.at(up);
    if (below.at(pipe) && project.PipeSize[pipe] == project.PipeSize[junction]) {
      largest = std::max(largest, std::fabs(project.PipeFlow[pipe]));
    }
  }
  return largest;
}

}  // namespace

void FindDesignAreaFlows(Project& project, int centre_head) {
  if (project.LoopCount < kLeastGridLoops) return;
  const int junction = JunctionPipe(project, centre_head);
  if (junction == 0 || !IsInLoop(project, PipeOfHead(project, centre_head))) return;
  project.AmaoFlowA = FlowAtStartOfRange(project, junction);
  project.AmaoFlowB = FlowFromOtherEnd(project, junction);
  project.AmaoDifference = std::fabs(project.AmaoFlowA - project.AmaoFlowB);
}

bool IsUnfavourableArea(const Project& project) {
  const std::string& area = ItemText(project, Item::kAreaReference);
  return ContainsNoCase(area, "REM") || ContainsNoCase(area, "UNFAV");
}

bool HasDesignAreaGrade(const Project& project) {
  return project.AmaoFlowA > 0.0F && project.AmaoFlowB > 0.0F && IsUnfavourableArea(project);
}

std::string DesignAreaGrade(const Project& project) {
  const double head_flow = project.HeadFlow[project.RemotestHead];
  const float difference = project.AmaoDifference;
  const auto certain = static_cast<float>(0.3 * head_flow);
  const auto unlikely = static_cast<float>(0.6 * head_flow);
  if (difference <= certain) return "This is certainly the correct AMAO";
  if (difference < unlikely) return "This may not be the right AMAO - try moving heads";
  if (difference > unlikely) return "Unlikely to be the right AMAO - try moving heads";
  return "";
}

}  // namespace zeb
