#include "check/tee_shapes.h"

#include <cmath>
#include <string>

#include "check/direction_code.h"
#include "check/fault_texts.h"
#include "check/node_checks.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr const char* kHeading = "  P i p e       Dir   Upstream    Dir";

int ConnectionsWithHead(const Project& project, int node, int upstream) {
  const int connections = ConnectionsAt(project, node);
  return connections == 2 && project.PipeHead[upstream] != 0 ? 3 : connections;
}

// Whether a pipe and its upstream pipe make no tee. Later rules overrule earlier ones.
bool IsBadTee(const Project& project, int pipe, int upstream) {
  const float direction = project.PipeDirection[pipe];
  const float up_direction = project.PipeDirection[upstream];
  float slope = project.PipeSlope[pipe];
  float up_slope = project.PipeSlope[upstream];
  const float turn = std::fabs(direction - up_direction);
  bool bad = turn > 5.0F;
  if (IsVertical(direction)) {
    bad = false;
    slope = 0.0F;
  }
  if (IsVertical(up_direction)) {
    bad = false;
    up_slope = 0.0F;
  }
  const float whole_turn = std::floor(turn + 0.5F);
  const bool square = whole_turn == 90.0F || whole_turn == 270.0F;
  if (square) bad = project.PipeHead[upstream] != 0;
  if (std::fabs(slope - up_slope) > 5.0F && std::floor(turn) < 20.0F) bad = true;
  if (std::floor(std::fabs(slope) + std::fabs(up_slope) + 0.5F) == 90.0F) bad = false;
  return bad;
}

std::string NodesAndDirection(const Project& project, int pipe) {
  return FixedNumber(static_cast<float>(project.PipeStartNode[pipe]), 5, 0) +
         FixedNumber(static_cast<float>(project.PipeEndNode[pipe]), 5, 0) +
         FixedNumber(project.PipeDirection[pipe], 6, 1);
}

void ReportShape(CheckRun& run, int pipe, int upstream, bool first_report) {
  const Project& project = run.project;
  const std::string heading = first_report ? kHeading + std::string(kLineBreak) : "";
  const std::string columns =
      heading + NodesAndDirection(project, pipe) + NodesAndDirection(project, upstream);
  ReportCheckError(run,
                   MakeFault(Fault::kTeeShape,
                             {{"columns", columns},
                              {"node", SignedText(project.PipeStartNode[pipe])},
                              {"a", SignedText(project.PipeStartNode[pipe])},
                              {"b", SignedText(project.PipeEndNode[pipe])},
                              {"direction", FixedNumber(project.PipeDirection[pipe], 6, 1)},
                              {"slope", FixedNumber(project.PipeSlope[pipe], 6, 2)},
                              {"up a", SignedText(project.PipeStartNode[upstream])},
                              {"up b", SignedText(project.PipeEndNode[upstream])},
                              {"up direction", FixedNumber(project.PipeDirection[upstream], 6, 1)},
                              {"up slope", FixedNumber(project.PipeSlope[upstream], 6, 2)}}));
}

}  // namespace

void CheckTeeShapes(CheckRun& run) {
  if (run.options.no_fitting_checks) return;
  Project& project = run.project;
  bool first_report = true;
  for (int pipe = 1; pipe <= run.pipes; ++pipe) {
    const int upstream = project.PipeUpstream[pipe];
    if (ConnectionsWithHead(project, project.PipeStartNode[pipe], upstream) <= 2) continue;
    if (!IsBadTee(project, pipe, upstream)) continue;
    ReportShape(run, pipe, upstream, first_report);
    first_report = false;
    project.PipeError[pipe] = FaultCode(Fault::kTeeShape);
    project.PipeError[upstream] = FaultCode(Fault::kTeeShape);
    ++project.WarningCount;
    TestStopFlag(run);
  }
}

}  // namespace zeb
