#include <string>

#include "calc/design_area.h"
#include "calc/flow_paths.h"
#include "calc/heads.h"
#include "calc/result_tables.h"
#include "calc/summary_sections.h"

namespace zeb {
namespace {

std::string HeadColumns(const Project& project, int head) {
  return Fixed(static_cast<float>(NodeOfHead(project, head)), {4, 0}) +
         Fixed(project.HeadFlow[head], {8, 2}) + Fixed(project.HeadArea[head], {7, 3});
}

void AddHeadsUnderPressure(Project& project, SummaryText& text) {
  text.Line("Heads under pressure: ", project.HeadsUnderPressure, kCountColumn);
  if (project.HeadsUnderPressure == 0) return;
  text.Line("Head    Flow   Area    Pressure bar");
  text.Line("node   L/min   sq.m     Act     Min");
  for (const int head : OperatingHeads(project)) {
    if (!IsUnderPressure(project, head)) continue;
    text.Line(HeadColumns(project, head) + Fixed(project.HeadPressure[head], {8, 3}) +
              Fixed(project.HeadMinPress[head], {8, 3}));
    MarkHead(project, head);
  }
}

void AddHeadsUnderDensity(Project& project, SummaryText& text) {
  text.Line(" Heads under density: ", project.HeadsUnderDensity, kCountColumn);
  if (project.HeadsUnderDensity == 0) return;
  text.Line("Head    Flow   Area   Density mm/min");
  text.Line("node   L/min   sq.m   Req.d   Actual");
  for (const int head : OperatingHeads(project)) {
    const float actual = ActualDensity(project, head);
    if (project.HeadArea[head] <= 0.0F || actual >= project.HeadDensity[head]) continue;
    text.Line(HeadColumns(project, head) + Fixed(project.HeadDensity[head], {8, 2}) +
              Fixed(actual, {9, 2}));
    MarkHead(project, head);
  }
}

void AddDesignAreaGrade(const Project& project, SummaryText& text) {
  if (!HasDesignAreaGrade(project)) return;
  text.Line("If this is a GRIDDED system, then");
  text.Line(" From start of range: ", project.AmaoFlowA, kFlowColumn, " L/min");
  text.Line("  and from other end: ", project.AmaoFlowB, kFlowColumn, " L/min");
  if (const std::string grade = DesignAreaGrade(project); !grade.empty()) text.Line(grade);
}

std::string RemoteHeadRow(const Project& project, int head) {
  return Fixed(static_cast<float>(head), {4, 0}) +
         Fixed(static_cast<float>(NodeOfHead(project, head)), {7, 0}) +
         Fixed(project.HeadFlow[head], {9, 1}) + Fixed(project.HeadArea[head], {8, 3}) +
         Fixed(ActualDensity(project, head), {9, 2});
}

void AddFourHeads(const Project& project, SummaryText& text) {
  if (project.MrDensity <= 0.0F) return;
  text.Line("Head   Node     Flow    Area    Density");
  text.Line(" no     no     L/min    sq.m     mm/min");
  for (const int head : {project.MrHead1, project.MrHead2, project.MrHead3, project.MrHead4}) {
    text.Line(RemoteHeadRow(project, head));
  }
  text.Line(" Total flow to heads: ", project.MrFlow, kFlowColumn, " L/min");
  text.Line("  Area between heads: ", project.MrArea, kAreaColumn, " sq.m");
  text.Line(" Total 4 mrhs area/4: ", project.MrAreaAverage, kAreaColumn, " sq.m");
  text.Line(" Density over 4 mrhs: ", project.MrDensity, kDensityColumn, " mm/min");
  text.SameIn(" US.GPM/sq.ft", project.MrDensity / kUsDensity, kDensityColumn);
  text.Line("   Specified density: ", project.MrRequiredDensity, kDensityColumn, " mm/min");
  text.SameIn(" US.GPM/sq.ft", project.MrRequiredDensity / kUsDensity, kDensityColumn);
}

}  // namespace

void AddHeadDutySection(Project& project, SummaryText& text) {
  AddHeadsUnderPressure(project, text);
  AddHeadsUnderDensity(project, text);
  text.Line("   Heads above 2 bar: ", project.HeadsOver2Bar, kCountColumn);
  text.Line("  Pipes with no flow: ", project.PipesNoFlow, kCountColumn);
}

void AddRemoteSection(const Project& project, SummaryText& text) {
  text.Line("  Remotest head node: ", project.RemotestNode, kCountColumn);
  AddDesignAreaGrade(project, text);
  AddFourHeads(project, text);
}

}  // namespace zeb
