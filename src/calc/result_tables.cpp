#include "calc/result_tables.h"

#include <algorithm>
#include <cmath>

#include "calc/flow_paths.h"
#include "calc/heads.h"
#include "calc/pressure_loss.h"
#include "calc/value_range.h"

namespace zeb {
namespace {

constexpr float kTolerance = 0.001F;   // bar and mm/min
constexpr float kHighPressure = 2.0F;  // bar
constexpr float kNoFlowVelocity = 0.001F;

struct HeadRanges {
  ValueRange height, area, flow, pressure, density;
};

struct PipeRanges {
  ValueRange start_pressure, end_pressure, velocity, gradient, flow, drop, eq_length, nominal;
};

void ClearHeadFigures(Project& project) {
  project.HeadsUnderPressure = 0;
  project.HeadsUnderDensity = 0;
  project.HeadsOver2Bar = 0;
  project.HeadPdError = 0.0F;
  project.SumHeadFlow = project.TotalHydrantFlow;
  for (int head = 1; head <= project.HeadCount; ++head) {
    project.HeadOrifice[head] = std::fabs(project.HeadOrifice[head]);
  }
}

void AddSprinkler(Project& project, int head, HeadRanges& ranges) {
  ranges.height.Add(project.HeadHeight[head]);
  ranges.area.Add(project.HeadArea[head]);
  ranges.flow.Add(project.HeadFlow[head]);
  ranges.pressure.Add(project.HeadPressure[head]);
  if (project.HeadArea[head] > 0.0F) ranges.density.Add(ActualDensity(project, head));
  if (IsUnderPressure(project, head)) ++project.HeadsUnderPressure;
  if (IsUnderDensity(project, head)) ++project.HeadsUnderDensity;
}

void AddHead(Project& project, int head, HeadRanges& ranges) {
  const float pressure = project.HeadPressure[head];
  const int pipe = PipeOfHead(project, head);
  project.SumHeadFlow += HeadFlowAt(project, head, pressure);
  if (pressure >= kHighPressure) ++project.HeadsOver2Bar;
  project.HeadPdError =
      std::max(project.HeadPdError, std::fabs(project.PipeEndPressure[pipe] - pressure));
  if (project.HeadCode[head] > 0.0F) AddSprinkler(project, head, ranges);
}

void ComputeHeadTables(Project& project) {
  ClearHeadFigures(project);
  HeadRanges ranges;
  for (int head = 1; head <= project.HeadCount; ++head) {
    if (HeadOperates(project, head)) AddHead(project, head, ranges);
  }
  ranges.height.Store(project.MinHeadHeight, project.MaxHeadHeight);
  ranges.area.Store(project.HeadAreaMin, project.HeadAreaMax);
  ranges.flow.Store(project.MinHeadFlow, project.MaxHeadFlow);
  ranges.pressure.Store(project.MinHeadPressure, project.MaxHeadPressure);
  ranges.density.Store(project.MinHeadDensity, project.MaxHeadDensity);
}

void AddVelocity(Project& project, int pipe, PipeRanges& ranges) {
  const float velocity = project.PipeVelocity[pipe];
  if (pipe == 1 || velocity > ranges.velocity.Greatest()) project.FastestPipe = pipe;
  ranges.velocity.Add(velocity);
  if (velocity < kNoFlowVelocity) ++project.PipesNoFlow;
  if (velocity > project.VelocityReportLimit) ++project.PipesOverSpeed;
  const float bucket = std::min(std::floor(velocity), static_cast<float>(kLastVelocityBucket));
  ++project.VelocityBuckets[static_cast<int>(bucket)];
  if (project.PipeValve[pipe] > 0) {
    project.ValveMaxVelocity = std::max(project.ValveMaxVelocity, velocity);
  }
}

void AddPipe(Project& project, int pipe, PipeRanges& ranges) {
  AddVelocity(project, pipe, ranges);
  const float drop = project.PipeDrop[pipe];
  const float eq_length = project.PipeEqLength[pipe];
  ranges.start_pressure.Add(project.PipeStartPressure[pipe]);
  ranges.end_pressure.Add(project.PipeEndPressure[pipe]);
  ranges.flow.Add(std::fabs(project.PipeFlow[pipe]));
  ranges.drop.Add(std::fabs(drop));
  ranges.gradient.Add(static_cast<float>(PressureGradient(drop, eq_length)));
  ranges.eq_length.Add(eq_length);
  ranges.nominal.Add(static_cast<float>(project.PipeSize[pipe]));
}

// m3
double VolumeOf(const Project& project, int pipe) {
  const double bore = BoreOf(project, pipe);
  const double length = static_cast<double>(project.PipeLength[pipe]) + project.PipeAddLength[pipe];
  return length * 3.14159 * bore * bore / 4000000.0;
}

void ClearPipeFigures(Project& project) {
  project.PipesNoFlow = 0;
  project.PipesOverSpeed = 0;
  project.FastestPipe = 0;
  project.ValveMaxVelocity = 0.0F;
  project.VelocityBuckets.Clear();
  project.VelocityReportLimit = project.RuleType == kRulesFm ? 6.1F : 10.0F;
}

void StorePipeRanges(Project& project, const PipeRanges& ranges) {
  ranges.start_pressure.Store(project.MinStartPressure, project.MaxStartPressure);
  ranges.end_pressure.Store(project.MinEndPressure, project.MaxEndPressure);
  ranges.velocity.Store(project.MinVelocity, project.MaxVelocity);
  ranges.gradient.Store(project.MinGradient, project.MaxGradient);
  ranges.flow.Store(project.MinPipeFlow, project.MaxPipeFlow);
  ranges.drop.Store(project.MinPipeDrop, project.MaxPipeDrop);
  ranges.eq_length.Store(project.MinEqLength, project.MaxEqLength);
  project.MinNominal = static_cast<int>(ranges.nominal.Least());
  project.MaxNominal = static_cast<int>(ranges.nominal.Greatest());
}

void ComputePipeTables(Project& project) {
  ClearPipeFigures(project);
  PipeRanges ranges;
  double volume = 0.0;
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    AddPipe(project, pipe, ranges);
    volume += VolumeOf(project, pipe);
  }
  project.PipeVolume = static_cast<float>(volume);
  StorePipeRanges(project, ranges);
}

// How far the heads' sum is from the source flow, %.
float HeadFlowBalance(const Project& project) {
  if (project.HeadCount == 0) return 0.0F;
  return std::fabs(100.0F - project.SumHeadFlow * 100.0F / project.SourceFlow);
}

}  // namespace

float ActualDensity(const Project& project, int head) {
  const float area = project.HeadArea[head];
  return area > 0.0F ? project.HeadFlow[head] / area : 0.0F;
}

bool IsUnderPressure(const Project& project, int head) {
  return project.HeadMinPress[head] - kTolerance > project.HeadPressure[head];
}

bool IsUnderDensity(const Project& project, int head) {
  return project.HeadArea[head] > 0.0F &&
         project.HeadDensity[head] - kTolerance > ActualDensity(project, head);
}

void MarkHead(Project& project, int head) {
  project.HeadOrifice[head] = -std::fabs(project.HeadOrifice[head]);
}

void ComputeResultTables(Session& session) {
  Project& project = session.project;
  ComputeHeadTables(project);
  ComputePipeTables(project);
  project.FlowBalance = HeadFlowBalance(project);
}

}  // namespace zeb
