#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "calc/summary_sections.h"
#include "services/design_authorities.h"
#include "services/number_text.h"

namespace zeb {
namespace {

constexpr float kSquareFeet = 10.7636F;  // in one m2

std::string FastPipeRow(const Project& project, int pipe) {
  return Fixed(project.PipeStartNode[pipe], {4, 0}) + Fixed(project.PipeEndNode[pipe], {6, 0}) +
         Fixed(project.PipeSize[pipe], {6, 0}) + Fixed(project.PipeFlow[pipe], {10, 1}) +
         Fixed(project.PipeVelocity[pipe], {8, 2});
}

void AddFastPipes(const Project& project, SummaryText& text) {
  text.Line("    Pipes >" + Fixed(project.VelocityReportLimit, {5, 1}) + " m/s: ",
            project.PipesOverSpeed, kCountColumn);
  if (project.PipesOverSpeed == 0) return;
  text.Line(" P i p e     Size     Flow  Velocity");
  text.Line("Start  End    mm     L/min    m/s");
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    if (project.PipeVelocity[pipe] > project.VelocityReportLimit) {
      text.Line(FastPipeRow(project, pipe));
    }
  }
}

struct RangeLine {
  const char* label;
  float SystemValues::*value;
  NumberFormat format;
  const char* unit;
};

constexpr std::array kRangesUpToVelocity{
    RangeLine{"   Min. head density: ", &SystemValues::MinHeadDensity, kDensityColumn, " mm/min"},
    RangeLine{"   Max. head density: ", &SystemValues::MaxHeadDensity, kDensityColumn, " mm/min"},
    RangeLine{"      Min. head flow: ", &SystemValues::MinHeadFlow, kFlowColumn, " L/min"},
    RangeLine{"      Max. head flow: ", &SystemValues::MaxHeadFlow, kFlowColumn, " L/min"},
    RangeLine{"  Min. head pressure: ", &SystemValues::MinHeadPressure, kPressureColumn, " bar"},
    RangeLine{"  Max. head pressure: ", &SystemValues::MaxHeadPressure, kPressureColumn, " bar"},
    RangeLine{" Min. pipe flow rate: ", &SystemValues::MinPipeFlow, kFlowColumn, " L/min"},
    RangeLine{" Max. pipe flow rate: ", &SystemValues::MaxPipeFlow, kFlowColumn, " L/min"},
    RangeLine{"       Min. velocity: ", &SystemValues::MinVelocity, kVelocityColumn, " m/s"},
    RangeLine{"       Max. velocity: ", &SystemValues::MaxVelocity, kVelocityColumn, " m/s"},
};

constexpr std::array kRangesFromVelocity{
    RangeLine{"Max. vel thro valves: ", &SystemValues::ValveMaxVelocity, kVelocityColumn, " m/s"},
    RangeLine{"  Min. pipe pressure: ", &SystemValues::MinPipeDrop, kPressureColumn, " bar"},
    RangeLine{"  Max. pipe pressure: ", &SystemValues::MaxPipeDrop, kPressureColumn, " bar"},
    RangeLine{"  Min. pressure drop: ", &SystemValues::MinGradient, kGradientColumn, " mb/m"},
    RangeLine{"  Max. pressure drop: ", &SystemValues::MaxGradient, kGradientColumn, " mb/m"},
    RangeLine{"   Min. equiv length: ", &SystemValues::MinEqLength, kLengthColumn, " m"},
    RangeLine{"   Max. equiv length: ", &SystemValues::MaxEqLength, kLengthColumn, " m"},
};

template <class Lines>
void AddRanges(const Project& project, const Lines& lines, SummaryText& text) {
  for (const RangeLine& line : lines) {
    text.Line(line.label, project.*line.value, line.format, line.unit);
  }
}

// How far the source flow is above what area and density ask for.
void AddHydraulicGradient(const Project& project, SummaryText& text) {
  const auto density = static_cast<float>(Val(ItemText(project, Item::kDensity)));
  const float design_flow = project.ReportArea * density;
  if (design_flow <= 0.0F) return;
  const float sprinkler_flow = project.SourceFlow - project.TotalHydrantFlow;
  text.Line("  Hydraulic gradient: ", sprinkler_flow / design_flow * 100.0F - 100.0F,
            kGradientColumn, " %");
}

void AddSourceDuty(const Project& project, SummaryText& text) {
  const float flow = project.SourceFlow;
  text.Line("    Source flow rate: ", flow, kFlowColumn, " L/min");
  text.SameIn(" m3/hr", flow * 0.06F, kFlowColumn);
  text.SameIn(" gpm", flow * 0.219969F, kFlowColumn);
  text.SameIn(" US.GPM", flow / 3.785F, kFlowColumn);
  const float pressure = project.SourcePressure;
  text.Line("     Source pressure: ", pressure, kPressureColumn, " bar");
  text.SameIn(" kPa", pressure * 100.0F, kPressureColumn);
  text.SameIn(" psi", pressure * 14.5038F, kPressureColumn);
}

void AddArea(const Project& project, SummaryText& text) {
  const float area = project.ReportArea;
  text.Line("  Total area covered: ", area, kAreaColumn, " sq.m");
  text.SameIn(" sq.ft", area * kSquareFeet, kAreaColumn);
  if (area <= 1.0F) return;
  const float density = (project.SourceFlow - project.TotalHydrantFlow) / area;
  text.Line("     Average density: ", density / kUsDensity, kDensityColumn, " US.GPM/sq.ft");
}

}  // namespace

void AddPipeSection(const Project& project, SummaryText& text) {
  if (project.UnsizedCount > 0) {
    text.Line("   No of pipes sized: ", project.SizedCount, kCountColumn);
    text.Line("         Pipe volume: ", project.PipeVolume, kVolumeColumn, " cu.m");
  }
  AddFastPipes(project, text);
}

void AddRangeSection(const Project& project, SummaryText& text) {
  AddRanges(project, kRangesUpToVelocity, text);
  text.SameIn(" ft/sec", project.MaxVelocity * 3.2808F, kVelocityColumn);
  AddRanges(project, kRangesFromVelocity, text);
}

void AddRuleSection(const Project& project, SummaryText& text) {
  if (!project.BackupFile.empty()) text.Line("         Backup file: " + project.BackupFile);
  if (project.RuleType == kRulesNfpa || project.RuleType == kRulesFm) {
    text.Line("       NFPA/FM Rules: HW 'C's may be changed");
  }
  text.Line("      Metres to bars: ", project.AuthorityStatic, {9, 3});
  text.Line("         SG of fluid: ", project.FluidSG, {9, 3});
}

void AddSourceSection(Project& project, SummaryText& text) {
  project.ReportArea =
      project.SelectedHeadsMode == 1 ? project.SelectedArea : project.TotalHeadArea;
  AddHydraulicGradient(project, text);
  text.Line("   Sum of head flows: ", project.SumHeadFlow, kFlowColumn, " L/min");
  AddSourceDuty(project, text);
  AddArea(project, text);
}

void AddVelocityProfile(Project& project, SummaryText& text) {
  project.MaxVelocity = std::min(project.MaxVelocity, static_cast<float>(kLastVelocityBucket));
  text.Line("    Velocity profile:   Pipes      Total no");
  int at_or_above = project.PipeCount;
  const int last = static_cast<int>(std::floor(project.MaxVelocity));
  for (int band = 0; band <= last; ++band) {
    const int count = project.VelocityBuckets[band];
    text.Line(Fixed(static_cast<float>(band), kCountColumn) + " to" +
              Fixed(static_cast<float>(band + 1), kCountColumn) +
              " m/s : " + Fixed(static_cast<float>(count), kCountColumn) +
              Fixed(static_cast<float>(at_or_above), kCountColumn));
    at_or_above -= count;
  }
}

}  // namespace zeb
