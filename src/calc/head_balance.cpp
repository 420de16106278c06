#include "calc/head_balance.h"

#include <algorithm>
#include <cmath>

#include "calc/flow_paths.h"
#include "calc/fluid.h"
#include "calc/heads.h"

namespace zeb {
namespace {

constexpr float kLeastPressure = 0.001F;  // bar

float RequiredPressure(const Project& project, int head, double metres_per_bar) {
  const double here = project.HeadHeight[head] / metres_per_bar + project.HeadPressure[head];
  return static_cast<float>(SumAlongPath(project, PipeOfHead(project, head), here));
}

void NoteMiss(Project& project, int head, PassFigures& figures) {
  const float miss = std::fabs(project.SourcePressure - project.HeadSourcePressure[head]);
  project.PipePdError = std::max(project.PipePdError, miss);
  if (miss > project.FinalTol) ++figures.over_final_tol;
  if (miss > project.PressureTol) ++figures.over_pressure_tol;
}

// The controlling head gets at once what the source gives it, so that it stays on its duty.
bool TakesAllAtOnce(const Project& project, int head, int head_count) {
  return project.Iteration > 0 && head_count > 1 && project.PumpCurveIndex == 0 &&
         head == project.ControlHead;
}

float MovedPressure(const Project& project, int head, bool at_once) {
  const double old_pressure = project.HeadPressure[head];
  const double available =
      project.SourcePressure - (project.HeadSourcePressure[head] - old_pressure);
  if (at_once) return static_cast<float>(available);
  return static_cast<float>((old_pressure - available) * project.Relaxation + available);
}

void NoteMargin(const Project& project, int head, PassFigures& figures) {
  const float margin = project.HeadPressure[head] - project.HeadStartPressure[head];
  if (project.RestartState != 0 || margin >= figures.least_margin) return;
  figures.least_margin = margin;
  figures.least_margin_head = head;
}

void NoteDensity(const Project& project, int head, float flow_before, PassFigures& figures) {
  if (project.HeadArea[head] <= 0.0F) return;
  const float density = project.HeadFlow[head] / project.HeadArea[head];
  if (density >= figures.least_density) return;
  figures.least_density = density;
  figures.least_density_head = head;
  figures.least_density_flow_before = flow_before;
}

}  // namespace

void FindRequiredPressures(Project& project, std::span<const int> heads, PassFigures& figures) {
  const double metres_per_bar = MetresPerBar(project);
  for (const int head : heads) {
    const float required = RequiredPressure(project, head, metres_per_bar);
    project.HeadSourcePressure[head] = required;
    if (figures.highest_head == 0 || required > figures.highest_required) {
      figures.highest_required = required;
      figures.highest_head = head;
    }
    if (head == heads.front() || required < figures.lowest_required) {
      figures.lowest_required = required;
    }
  }
}

void MoveHeads(Project& project, std::span<const int> heads, PassFigures& figures) {
  project.PipePdError = 0.0F;
  for (const int head : heads) {
    NoteMiss(project, head, figures);
    const float flow_before = project.HeadFlow[head];
    const bool at_once = TakesAllAtOnce(project, head, static_cast<int>(heads.size()));
    project.HeadPressure[head] = std::max(MovedPressure(project, head, at_once), kLeastPressure);
    project.HeadFlow[head] = HeadFlowAt(project, head, project.HeadPressure[head]);
    project.HeadFlowChange[head] = project.HeadFlow[head] - flow_before;
    figures.largest_change =
        std::max(figures.largest_change, std::fabs(project.HeadFlowChange[head]));
    NoteMargin(project, head, figures);
    NoteDensity(project, head, flow_before, figures);
  }
}

}  // namespace zeb
