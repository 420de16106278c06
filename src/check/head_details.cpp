#include "check/head_details.h"

#include <array>

#include "check/widen.h"
#include "model/real_arithmetic.h"

namespace zeb {
namespace {

constexpr float kBig = 1E20F;

struct HeadRange {
  Table<float, kLastHead> HeadTables::*row;
  float SystemValues::*lowest;
  float SystemValues::*highest;
};

constexpr std::array kHeadRanges = {
    HeadRange{&HeadTables::HeadOrifice, &SystemValues::MinOrifice, &SystemValues::MaxOrifice},
    HeadRange{&HeadTables::HeadK, &SystemValues::MinK, &SystemValues::MaxK},
    HeadRange{&HeadTables::HeadArea, &SystemValues::MinArea, &SystemValues::MaxArea},
    HeadRange{&HeadTables::HeadMinPress, &SystemValues::MinPress, &SystemValues::MaxPress},
    HeadRange{&HeadTables::HeadDensity, &SystemValues::MinDensity, &SystemValues::MaxDensity}};

// What the project keeps as the range of no heads.
void ClearRanges(Project& project) {
  project.MinHeadHeight = project.MaxHeadHeight = 0.0F;
  for (const HeadRange& range : kHeadRanges) {
    project.*range.lowest = project.*range.highest = 0.0F;
  }
}

void OpenRanges(Project& project) {
  project.MinHeadHeight = kBig;
  project.MaxHeadHeight = -kBig;
  for (const HeadRange& range : kHeadRanges) {
    project.*range.lowest = kBig;
    project.*range.highest = -kBig;
  }
}

void WidenRanges(Project& project, int head) {
  const int pipe = static_cast<int>(project.HeadPipe[head]);
  // The height as it was before the network was moved above 0.
  Widen(project.MinHeadHeight, project.MaxHeadHeight, project.PipeZ[pipe] + project.ZOffset);
  for (const HeadRange& range : kHeadRanges) {
    Widen(project.*range.lowest, project.*range.highest, (project.*range.row)[head]);
  }
}

}  // namespace

void SumUpHeads(CheckRun& run) {
  Project& project = run.project;
  OpenRanges(project);
  for (int head = 1; head <= run.heads; ++head) {
    const double total = project.TotalHeadArea;
    project.TotalHeadArea = RoundToSingle(total + project.HeadArea[head]);
    if (project.HeadCode[head] > 0.0F) WidenRanges(project, head);
  }
  if (project.MinHeadHeight == kBig) ClearRanges(project);
}

}  // namespace zeb
