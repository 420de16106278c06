#include "check/compose_line.h"

#include <array>
#include <cmath>
#include <string>
#include <utility>

#include "check/direction_code.h"
#include "check/line_words.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kDirectionWidth = 10;
constexpr int kLineReserve = 96;
constexpr const char* kDeletedLine = "Z!Z!";

// The number in its column; one that is wider is written whole.
void AppendNumber(std::string& line, float value, int width, int decimals) {
  constexpr int kWidest = 45;
  const std::string text = TrimLeft(FixedNumber(value, kWidest, decimals));
  const int blanks = width - static_cast<int>(text.size());
  if (blanks > 0) line.append(static_cast<std::size_t>(blanks), ' ');
  line += text;
}

// A number that is a word of its own, so at least one blank parts it from what stands before it.
void AppendWord(std::string& line, float value, int width, int decimals) {
  std::string word;
  AppendNumber(word, value, width, decimals);
  if (!line.empty() && line.back() != ' ' && word.front() != ' ') line += ' ';
  line += word;
}

bool IsDiscarded(const Project& project, int head) {
  return !project.SavedCopyPath.empty() && project.HeadOn[head] == 0;
}

void AppendHead(std::string& line, const Project& project, int pipe) {
  const int head = project.PipeHead[pipe];
  if (head == 0 || project.HeadCode[head] < 0.0F) return;
  if (!IsDiscarded(project, head)) {
    AppendWord(line, project.HeadCode[head], 4, 0);
    AppendWord(line, project.HeadArea[head], 7, 3);
  }
  const float density = project.HeadDensity[head];
  const float usual = ValSingle(ItemText(project, Item::kDensity));
  if (std::fabs(density - usual) > 0.1F && density > 0.1F) {
    line += " DD";
    AppendNumber(line, density, 7, 2);
  }
}

// The options that are one number: when they are written and how.
enum class Shown { kNotZero, kPositive, kAboveTenth, kAboveOne, kSizeAboveOne };

bool IsShown(Shown shown, float value) {
  switch (shown) {
    case Shown::kNotZero:
      return value != 0.0F;
    case Shown::kPositive:
      return value > 0.0F;
    case Shown::kAboveTenth:
      return value > 0.1F;
    case Shown::kAboveOne:
      return value > 1.0F;
    case Shown::kSizeAboveOne:
      return std::fabs(value) > 1.0F;
  }
  return false;
}

struct OptionColumn {
  const char* code;
  float value;
  Shown shown;
  int width;
  int decimals;
};

void AppendOptions(std::string& line, const Project& project, int pipe) {
  const std::array columns = {
      OptionColumn{" AE", static_cast<float>(project.PipeAE[pipe]), Shown::kNotZero, 3, 0},
      OptionColumn{" AT", static_cast<float>(project.PipeAT[pipe]), Shown::kNotZero, 3, 0},
      OptionColumn{" HY", project.PipeHydrant[pipe], Shown::kSizeAboveOne, 6, 0},
      OptionColumn{" OP", project.PipeOrifice[pipe], Shown::kAboveOne, 6, 0},
      OptionColumn{" PD", project.PipePressDrop[pipe], Shown::kAboveTenth, 6, 3},
      OptionColumn{" AL", project.PipeAddLength[pipe], Shown::kNotZero, 6, 1},
      OptionColumn{" VJ", static_cast<float>(project.PipeVJ[pipe]), Shown::kPositive, 3, 0}};
  for (const OptionColumn& column : columns) {
    if (!IsShown(column.shown, column.value)) continue;
    line += column.code;
    AppendNumber(line, column.value, column.width, column.decimals);
  }
}

void AppendAddedBuilding(std::string& line, const Project& project, int pipe) {
  if (project.PipeABFlow[pipe] <= 1.0F || IsDiscarded(project, project.PipeHead[pipe])) return;
  line += " AB";
  AppendNumber(line, project.PipeABFlow[pipe], 6, 3);
  AppendWord(line, project.PipeABPress[pipe], 7, 3);
  AppendWord(line, project.PipeABArea[pipe], 7, 1);
}

std::string LineOf(const Project& project, int pipe) {
  std::string line;
  line.reserve(kLineReserve);
  AppendWord(line, static_cast<float>(project.PipeStartNode[pipe]), 4, 0);
  AppendWord(line, static_cast<float>(project.PipeEndNode[pipe]), 5, 0);
  AppendWord(line, static_cast<float>(project.PipeSize[pipe]), 4, 0);
  AppendWord(line, project.PipeLengthIn[pipe], 8, 3);
  line += ' ';
  line += PadOrCut(DirectionText(project.PipeDirection[pipe], project.PipeSlope[pipe]),
                   kDirectionWidth);
  AppendWord(line, static_cast<float>(project.PipeType[pipe]), 3, 0);
  AppendWord(line, static_cast<float>(project.PipeValve[pipe]), 3, 0);
  AppendHead(line, project, pipe);
  AppendOptions(line, project, pipe);
  AppendAddedBuilding(line, project, pipe);
  return line;
}

}  // namespace

void ComposePipeLine(Session& session, int pipe) {
  Project& project = session.project;
  std::string line = project.PipeError[pipe] == -1 ? kDeletedLine : LineOf(project, pipe);
  if (project.SavedCopyPath.empty()) {
    project.PipeLines[project.PipeLine[pipe]] = std::move(line);
  } else {
    project.ComposedLine = std::move(line);
  }
}

}  // namespace zeb
