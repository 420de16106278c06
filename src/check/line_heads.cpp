#include "check/line_heads.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "check/correction.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr float kNoArea = 0.1F;  // an area below is none, m2
constexpr int kDischargeCode = -1;

std::string CodesOf(const Project& project) {
  std::string codes;
  for (int code = 1; code <= project.HeadCodeCount; ++code) codes += SignedText(code);
  return codes;
}

// A code's line tells which project uses it, behind its columns.
void MarkAsUsed(Project& project, int code) {
  std::string& line = project.HeadCodeLines[code];
  line = PadOrCut(line, 32) + "  " + project.ProjectPath;
}

}  // namespace

LineHeads::LineHeads(CheckRun& run)
    : run_(run),
      project_(run.project),
      default_density_(ValSingle(ItemText(run.project, Item::kDensity))) {}

int LineHeads::NewHead(int pipe) {
  run_.heads = std::min(run_.heads + 1, kLastHead);
  ClearHead(project_, run_.heads);
  project_.HeadPipe[run_.heads] = static_cast<float>(pipe);
  project_.PipeHead[pipe] = run_.heads;
  return run_.heads;
}

void LineHeads::AddDischarge(const PipeInput& input, const LineOptions& options) {
  LineWords words(options.Behind(LineOption::kAddBuilding));
  const float flow = std::max(ValSingle(words.Next()), 10.0F);
  const float pressure = std::max(ValSingle(words.Next()), 0.1F);
  const float area = std::max(ValSingle(words.Next()), 0.0F);
  project_.PipeABFlow[input.slot] = flow;
  project_.PipeABPress[input.slot] = pressure;
  project_.PipeABArea[input.slot] = area;
  project_.PipeHydrant[input.slot] = 0.0F;

  const int head = NewHead(input.slot);
  project_.HeadArea[head] = area;
  project_.HeadK[head] = static_cast<float>(flow / std::sqrt(static_cast<double>(pressure)));
  project_.HeadMinPress[head] = pressure;
  project_.HeadStartPressure[head] = pressure;
  project_.HeadDensity[head] = area > 1.0F ? flow / area : 0.0F;
  project_.HeadCode[head] = kDischargeCode;
}

void LineHeads::AddHead(PipeInput& input, LineWords& words, const LineOptions& options) {
  const int given_code = ValInt16(words.Next());
  if (given_code == 0) return;
  const int code = TakeCode(input, given_code);
  float area = std::fabs(ValSingle(words.Next()));
  if (area < kNoArea) area = 0.0F;

  const int head = NewHead(input.slot);
  JudgeArea(input, code, area);
  WatchLargeHead(code, area);
  project_.HeadArea[head] = area;
  project_.HeadK[head] = UsableK(input, code);
  project_.HeadMinPress[head] = project_.HeadCodePress[code];
  project_.HeadOrifice[head] = project_.HeadCodeOrifice[code];
  const bool has_density = options.Has(LineOption::kDensity);
  const float density = has_density ? options.Single(LineOption::kDensity) : default_density_;
  project_.HeadDensity[head] = area < kNoArea ? 0.0F : density;
  project_.HeadCode[head] = static_cast<float>(code);
  CountUse(code, area);
}

int LineHeads::TakeCode(PipeInput& input, int code) {
  if (code >= 1 && code <= project_.HeadCodeCount) return code;
  ReportCorrection(run_, input, Fault::kHeadCode,
                   {{"code", SignedText(code)}, {"codes", CodesOf(project_)}});
  return 1;
}

void LineHeads::JudgeArea(PipeInput& input, int code, float area) {
  if (area <= highest_area_ || run_.options.no_area_check) return;
  highest_area_ = area;
  ReportCorrection(run_, input, Fault::kHeadArea,
                   {{"area", FixedNumber(area, 9, 3)}, {"code", SignedText(code)}});
}

// Notes that heads of a large K stand closer together or further apart than such heads may.
void LineHeads::WatchLargeHead(int code, float area) {
  const bool large = project_.HeadCodeK[code] > 200.0F && project_.HeadCodeMaxArea[code] > 3.0F;
  if (project_.HeadAreaState != 0 || !large) return;
  if (area < 7.4F) {
    project_.HeadAreaState = 1;
  } else if (area > 9.3F) {
    project_.HeadAreaState = 2;
  }
}

float LineHeads::UsableK(PipeInput& input, int code) {
  const float k = project_.HeadCodeK[code];
  if (k >= 0.01F) return k;
  ReportCorrection(run_, input, Fault::kHeadK, {{"code", SignedText(code)}});
  return 1.0F;
}

void LineHeads::CountUse(int code, float area) {
  if (project_.HeadCodeUses[code] == 0.0F) MarkAsUsed(project_, code);
  project_.HeadCodeUses[code] += 1.0F;
  project_.HeadCodeMinArea[code] = std::min(project_.HeadCodeMinArea[code], area);
  project_.HeadCodeMaxArea[code] = std::max(project_.HeadCodeMaxArea[code], area);
  project_.MinHeadCode = std::min<int>(project_.MinHeadCode, code);
  project_.MaxHeadCode = std::max<int>(project_.MaxHeadCode, code);
}

}  // namespace zeb
