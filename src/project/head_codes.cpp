#include "project/head_codes.h"

#include <cstddef>
#include <set>
#include <vector>

#include "model/real_arithmetic.h"
#include "project/project_writer.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kNameWidth = 10;
constexpr int kPathColumn = 35;

// A field's first column, from 1, and its width.
struct Column {
  int start;
  int width;
};

struct Layout {
  Column orifice;
  Column k;
  Column pressure;
  Column name;
};

constexpr Layout kTwoDigits{{4, 4}, {9, 7}, {16, 6}, {23, kNameWidth}};
constexpr Layout kThreeDigits{{6, 4}, {11, 6}, {17, 7}, {25, kNameWidth}};

constexpr int kLastTwoDigitCode = 100;     // of the check
constexpr int kLastTwoDigitPosition = 99;  // of the editor

// The largest values of which every digit is read back.
constexpr float kLargestOrifice = 999.9F;
constexpr float kLargestValue = 999.99F;

float NumberAt(const std::string& line, const Column& column) {
  return RoundToSingle(Val(Mid(line, column.start, column.width)));
}

HeadCodeFields FieldsOf(const std::string& line, const Layout& layout) {
  return {.orifice = NumberAt(line, layout.orifice),
          .k = NumberAt(line, layout.k),
          .pressure = NumberAt(line, layout.pressure),
          .name = TrimRight(Mid(line, layout.name.start, layout.name.width))};
}

// A blank and four places: the decimal of an orifice from 100 mm up gives way to the blank.
std::string OrificeField(float orifice) {
  const std::string fixed = FixedNumber(orifice, 5, 1);
  return fixed.front() == ' ' ? fixed : " " + PadOrCut(FormatDecimals(orifice, 1), 4);
}

std::string BodyOf(const HeadCodeFields& fields) {
  return OrificeField(fields.orifice) + FixedNumber(fields.k, 7, fields.k < 1.0F ? 3 : 2) +
         FixedNumber(fields.pressure, 7, 2) + " " + PadOrCut(fields.name, kNameWidth);
}

// The number as it stands in its columns, with the blank that moves a three-digit line.
std::string NumberColumns(const std::string& number, int position) {
  return position > kLastTwoDigitPosition ? PadOrCut(number, 3) + " " : PadOrCut(number, 2);
}

std::string NumberText(int position) {
  return FormatDigits(position, position > kLastTwoDigitPosition ? 3 : 2);
}

std::string LineOf(const std::string& number, int position, const HeadCodeFields& fields,
                   const std::string& path) {
  return NumberColumns(number, position) + BodyOf(fields) + "  " + path;
}

// Where the blank behind the number stands; a compacted line may begin with a blank.
std::size_t NumberEnd(std::string_view line) {
  const std::size_t start = line.find_first_not_of(' ');
  return start == std::string_view::npos ? start : line.find(' ', start);
}

// The codes that heads use, ascending.
std::vector<int> UsedCodes(const Project& project) {
  std::set<int> codes;
  for (int head = 1; head <= project.HeadCount; ++head) {
    const int code = static_cast<int>(project.HeadCode[head]);
    if (code > 0) codes.insert(code);
  }
  return {codes.begin(), codes.end()};
}

void RenumberHeads(Project& project, int from, int to) {
  for (int head = 1; head <= project.HeadCount; ++head) {
    if (static_cast<int>(project.HeadCode[head]) == from) {
      project.HeadCode[head] = static_cast<float>(to);
    }
  }
}

// From 10 up the number keeps the blank of a positive number.
std::string CompactedLine(const std::string& line, int code) {
  constexpr int kKept = 31;
  const std::string number = code < 10 ? "0" + PlainText(code) : SignedText(code);
  return number + " " + Mid(BehindHeadCodeNumber(line), 2, kKept);
}

void ReplaceLines(Project& project, const std::vector<std::string>& lines) {
  project.HeadCodeLines.Clear();
  int position = 0;
  for (const std::string& line : lines) project.HeadCodeLines[++position] = line;
  project.HeadCodeCount = position;
}

}  // namespace

void ParseHeadCodes(Project& project) {
  for (int code = 1; code <= project.HeadCodeCount; ++code) {
    const Layout& layout = code > kLastTwoDigitCode ? kThreeDigits : kTwoDigits;
    const HeadCodeFields fields = FieldsOf(project.HeadCodeLines[code], layout);
    project.HeadCodeOrifice[code] = fields.orifice;
    project.HeadCodeK[code] = fields.k;
    project.HeadCodePress[code] = fields.pressure;
    project.HeadCodeUses[code] = 0.0F;
    project.HeadCodeMinArea[code] = 9999.9F;
    project.HeadCodeMaxArea[code] = 0.0F;
  }
}

HeadCodeFields HeadCodeAt(const Project& project, int position) {
  const Layout& layout = position > kLastTwoDigitPosition ? kThreeDigits : kTwoDigits;
  return FieldsOf(project.HeadCodeLines[position], layout);
}

bool FitsHeadCodeLine(const HeadCodeFields& fields) {
  const auto within = [](float value, float largest) { return value >= 0.0F && value <= largest; };
  return within(fields.orifice, kLargestOrifice) && within(fields.k, kLargestValue) &&
         within(fields.pressure, kLargestValue);
}

void AppendHeadCodeLine(Project& project, const std::string& line) {
  const int position = project.HeadCodeCount + 1;
  project.HeadCodeLines[position] = line;
  project.HeadCodeCount = position;
}

void AddHeadCode(Project& project, const HeadCodeFields& fields) {
  const int position = project.HeadCodeCount + 1;
  AppendHeadCodeLine(project, LineOf(NumberText(position), position, fields, project.ProjectPath));
}

bool MayChangeHeadCode(const Project& project, int position) {
  const std::string path = Trim(Mid(project.HeadCodeLines[position], kPathColumn));
  if (path.empty() || path == kUntitled) return true;
  const std::string& own = project.ProjectPath;
  return Left(UpperCase(path), static_cast<int>(own.size())) == own;
}

void ChangeHeadCode(Project& project, int position, const HeadCodeFields& fields) {
  std::string& line = project.HeadCodeLines[position];
  const std::string number = Trim(Left(line, static_cast<int>(NumberEnd(line))));
  const bool in_columns = number.size() == NumberText(position).size();
  line = LineOf(in_columns ? number : NumberText(position), position, fields, project.ProjectPath);
}

std::string BehindHeadCodeNumber(std::string_view line) {
  const std::size_t end = NumberEnd(line);
  return std::string(end == std::string_view::npos ? line.substr(line.size()) : line.substr(end));
}

void countHeads(Session& session) {
  Project& project = session.project;
  const std::vector<int> codes = UsedCodes(project);
  if (codes.empty()) return;

  std::vector<std::string> lines;
  for (const int code : codes) {
    const int position = static_cast<int>(lines.size()) + 1;
    lines.push_back(CompactedLine(project.HeadCodeLines[code], position));
    RenumberHeads(project, code, position);
  }
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    if (project.PipeError[pipe] != kPipeDeleted) session.platform.commands.ComposePipeLine(pipe);
  }
  ReplaceLines(project, lines);
  session.platform.shell.Redraw();
}

}  // namespace zeb
