#include "check/check_summary.h"

#include <array>
#include <string>
#include <string_view>

#include "check/line_words.h"
#include "check/pump_search.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kAuthorityWidth = 26;

// The form of a number: width, decimals and the unit behind it.
struct Form {
  int width;
  int decimals;
  const char* unit;
};

constexpr Form kCount = {5, 0, ""};
constexpr Form kSize = {5, 0, "     mm"};
constexpr Form kLength = {9, 3, " m"};
constexpr Form kArea = {9, 3, " sq.m"};

// A lowest and a highest value. With a single label the two are one line when they are equal.
struct RangeLines {
  const char* lowest_label;
  const char* highest_label;
  const char* single_label;
  float SystemValues::*lowest;
  float SystemValues::*highest;
  Form form;
};

constexpr std::array kHeadRanges = {
    RangeLines{"   Min. head orifice: ",
               "   Max. head orifice: ",
               "   Head orifice size: ",
               &SystemValues::MinOrifice,
               &SystemValues::MaxOrifice,
               {7, 1, "   mm"}},
    RangeLines{"       Min. head 'k': ",
               "       Max. head 'k': ",
               "     Head 'k' factor: ",
               &SystemValues::MinK,
               &SystemValues::MaxK,
               {8, 2, ""}},
    RangeLines{"      Min. head area: ", "      Max. head area: ", "   Head area covered: ",
               &SystemValues::MinArea, &SystemValues::MaxArea, kArea},
    RangeLines{"     Min. head press: ",
               "     Max. head press: ",
               "   Head min pressure: ",
               &SystemValues::MinPress,
               &SystemValues::MaxPress,
               {9, 3, " bar"}},
    RangeLines{"    Min. head height: ", "    Max. head height: ", nullptr,
               &SystemValues::MinHeadHeight, &SystemValues::MaxHeadHeight, kLength},
    RangeLines{"        Min. density: ",
               "        Max. density: ",
               " Density of coverage: ",
               &SystemValues::MinDensity,
               &SystemValues::MaxDensity,
               {8, 2, "  mm/min"}}};

constexpr RangeLines kPipeLengths = {"    Min. pipe length: ", "    Max. pipe length: ", nullptr,
                                     &SystemValues::MinLength, &SystemValues::MaxLength, kLength};

constexpr std::array kExtents = {
    RangeLines{"     Min. 'x' co-ord: ", "     Max. 'x' co-ord: ", nullptr, &SystemValues::MinX,
               &SystemValues::MaxX, kLength},
    RangeLines{"     Min. 'y' co-ord: ", "     Max. 'y' co-ord: ", nullptr, &SystemValues::MinY,
               &SystemValues::MaxY, kLength},
    RangeLines{"     Min. 'z' co-ord: ", "     Max. 'z' co-ord: ", nullptr, &SystemValues::MinZ,
               &SystemValues::MaxZ, kLength}};

class SummaryText {
 public:
  explicit SummaryText(const Project& project) : project_(project) {}

  void AddCounts();
  void AddRules(bool has_pump);
  void AddPipeRanges();
  void AddHeadCodes();
  void AddHeadRanges();
  void AddHydrants();
  void AddExtents();
  void AddLengthsByTypeAndSize();
  void AddTotals();
  // The text, with its last line.
  [[nodiscard]] std::string End() const {
    return text_ + "End of summary for " + project_.ProjectPath;
  }

 private:
  void Line(std::string_view line) {
    text_ += line;
    text_ += kLineBreak;
  }
  void Value(const char* label, double value, const Form& form) {
    Line(label + FixedNumber(static_cast<float>(value), form.width, form.decimals) + form.unit);
  }
  void Range(const RangeLines& range);

  const Project& project_;
  std::string text_;
};

void SummaryText::Range(const RangeLines& range) {
  const float lowest = project_.*range.lowest;
  const float highest = project_.*range.highest;
  if (range.single_label != nullptr && lowest == highest) {
    Value(range.single_label, highest, range.form);
    return;
  }
  Value(range.lowest_label, lowest, range.form);
  Value(range.highest_label, highest, range.form);
}

void SummaryText::AddCounts() {
  Value("        No. of pipes: ", project_.PipeCount, kCount);
  if (project_.UnsizedCount > 0) Value("No. of unsized pipes: ", project_.UnsizedCount, kCount);
  Value("        No. of heads: ", project_.HeadCount, kCount);
  Value("        No. of loops: ", project_.LoopCount, kCount);
  if (project_.OrificeCount > 0) Value("      Orifice plates: ", project_.OrificeCount, kCount);
  Value("     No. of warnings: ", project_.WarningCount, kCount);
  if (!project_.WarningText.empty()) Line(project_.WarningText);
}

void SummaryText::AddRules(bool has_pump) {
  Line("           Authority:  " + Left(ItemText(project_, Item::kAuthority), kAuthorityWidth));
  Line(std::string("          Pump curve:  ") + (has_pump ? "YES" : "NO"));
  Value(" Total area of heads: ", project_.TotalHeadArea, kArea);
  Value("      AMAO specified: ", ValSingle(ItemText(project_, Item::kDesignArea)), kArea);
}

void SummaryText::AddPipeRanges() {
  Value("    Min. node number: ", project_.MinNode, kCount);
  Value("    Max. node number: ", project_.MaxNode, kCount);
  Value("      Min. pipe size: ", project_.MinSize, kSize);
  Value("      Max. pipe size: ", project_.MaxSize, kSize);
  Range(kPipeLengths);
}

void SummaryText::AddHeadCodes() {
  Value("   No. of head codes: ", project_.HeadCodeCount, kCount);
  Line("Head  No of    Min         Max");
  Line("code  heads    sq.m        sq.m");
  for (int code = 1; code <= project_.HeadCodeCount; ++code) {
    if (project_.HeadCodeUses[code] == 0.0F) continue;
    Line(FixedNumber(static_cast<float>(code), 3, 0) +
         FixedNumber(project_.HeadCodeUses[code], 7, 0) +
         FixedNumber(project_.HeadCodeMinArea[code], 9, 3) +
         FixedNumber(project_.HeadCodeMaxArea[code], 12, 3));
  }
}

void SummaryText::AddHeadRanges() {
  for (const RangeLines& range : kHeadRanges) Range(range);
}

void SummaryText::AddHydrants() {
  if (project_.HydrantCount == 0) return;
  Value("  Number of hydrants: ", project_.HydrantCount, kCount);
  Value(" Total hydrants flow: ", project_.TotalHydrantFlow, {7, 1, "   L/min"});
}

void SummaryText::AddExtents() {
  for (const RangeLines& range : kExtents) Range(range);
}

void SummaryText::AddLengthsByTypeAndSize() {
  for (int type = 1; type <= project_.PipeTypeCount; ++type) {
    for (int size = 1; size <= project_.PipeSizeCount; ++size) {
      const float length = project_.PipeLengthByTypeSize[size][type];
      if (length <= 0.1F) continue;
      const auto nominal = static_cast<float>(project_.NominalSize(type, size));
      Line("        " + FixedNumber(nominal, 4, 0) + " mm " +
           PadOrCut(project_.PipeTypeRefs[type], 3) + " : " + FixedNumber(length, 7, 1) + "   m");
    }
  }
}

void SummaryText::AddTotals() {
  Value(" No of lines in file: ", project_.LineCount, kCount);
  Value("No of pipes in loops: ", project_.LoopListLength, kCount);
  Value("   Total pipe length: ", project_.TotalLength, {7, 1, "   m"});
  Value("   Total pipe volume: ", project_.TotalVolume, {9, 3, " cu.m"});
  if (!project_.BackupFile.empty()) Line("         Backup file: " + project_.BackupFile);
  Line("       ");
}

}  // namespace

void BuildCheckSummary(CheckRun& run) {
  SummaryText summary(run.project);
  summary.AddCounts();
  summary.AddRules(FindPump(run.project));
  summary.AddPipeRanges();
  summary.AddHeadCodes();
  summary.AddHeadRanges();
  summary.AddHydrants();
  summary.AddExtents();
  summary.AddLengthsByTypeAndSize();
  summary.AddTotals();
  run.project.CheckSummary = summary.End();
}

}  // namespace zeb
