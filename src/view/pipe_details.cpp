#include "view/pipe_details.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "calc/heads.h"
#include "calc/pressure_loss.h"
#include "services/number_text.h"
#include "services/text.h"
#include "view/view_modes.h"

namespace zeb {
namespace {

// Lines of a label of 12 characters and a value, decimal points below each other.
class DetailLines {
 public:
  void Number(std::string_view label, float value, int decimals, std::string_view unit = "") {
    constexpr std::size_t kWholeWidth = 5;
    const std::string number = FormatDecimals(value, decimals);
    const std::size_t whole = std::min(number.find('.'), number.size());
    const std::string blanks(kWholeWidth - std::min(whole, kWholeWidth), ' ');
    Line(std::string(label) + blanks + number + std::string(unit));
  }
  void Name(std::string_view label, const std::string& name) {
    Line(std::string(label) + "   " + name);
  }
  void Line(const std::string& line) { text_ += line + std::string(kLineBreak); }

  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

bool IsVertical(const Project& project, int pipe) {
  return std::fabs(project.PipeDirection[pipe]) == kDirectionUp;
}

void AddPipeLines(const Project& project, int pipe, DetailLines& lines) {
  const int valve = project.PipeValve[pipe];
  lines.Number(" Pipe size: ", static_cast<float>(project.PipeSize[pipe]), 0,
               project.PipeUnsized[pipe] != 0 ? " mm [0]" : " mm");
  lines.Name(" Pipe type: ", project.PipeTypeDescriptions[project.PipeType[pipe]]);
  lines.Number("      Bore: ", BoreOf(project, pipe), 2, " mm");
  lines.Number(IsVertical(project, pipe) ? "  Vert len: " : "Horiz leng: ",
               project.PipeLengthIn[pipe], 3, " m");
  lines.Number("Act length: ", project.PipeLength[pipe], 3, " m");
  lines.Name(" Direction: ", DirectionWords(project.PipeDirection[pipe]));
  lines.Number("     Slope: ", project.PipeSlope[pipe], 2, " deg");
  lines.Number("    Static: ", project.PipeRise[pipe], 3, " m");
  lines.Number("    Elbows: ", static_cast<float>(project.PipeElbows[pipe]), 0);
  lines.Number("      Tees: ", static_cast<float>(project.PipeTees[pipe]), 0);
  lines.Name("Valve type: ", valve > 0 ? project.ValveDescriptions[valve] : "None");
  lines.Number("Victaulics: ", static_cast<float>(project.PipeVJ[pipe]), 0);
  lines.Number("   Hydrant: ", project.PipeHydrant[pipe], 1, " L/min");
  lines.Number("Orifice pl: ", project.PipeOrifice[pipe], 1);
  lines.Number("  Extra pd: ", project.PipePressDrop[pipe], 3, " bar");
}

void AddPlaceLines(const Project& project, int pipe, DetailLines& lines) {
  const int upstream = project.PipeUpstream[pipe];
  lines.Number(" Start 'x': ", project.PipeX[upstream], 3, " m");
  lines.Number(" Start 'y': ", project.PipeY[upstream], 3, " m");
  lines.Number(" Start 'z': ", project.PipeZ[upstream], 3, " m");
  lines.Number("   End 'x': ", project.PipeX[pipe], 3, " m");
  lines.Number("   End 'y': ", project.PipeY[pipe], 3, " m");
  lines.Number("   End 'z': ", project.PipeZ[pipe], 3, " m");
  lines.Number("  Upstream: ", static_cast<float>(upstream), 0);
}

void AddResultLines(const Project& project, int pipe, DetailLines& lines) {
  const float drop = project.PipeDrop[pipe];
  const double gradient = PressureGradient(drop, project.PipeEqLength[pipe]);
  lines.Number(" Flow rate: ", project.PipeFlow[pipe], 1, " L/min");
  lines.Number("  Velocity: ", project.PipeVelocity[pipe], 2, " m/s");
  lines.Number("Eq. length: ", project.PipeEqLength[pipe], 3, " m");
  lines.Number("Start pres: ", project.PipeStartPressure[pipe], 3, " bar");
  lines.Number("  Friction: ", drop, 3, " bar");
  lines.Number("    Static: ", project.PipeRise[pipe] / project.AuthorityStatic, 3, " bar");
  lines.Number(" End press: ", project.PipeEndPressure[pipe], 3, " bar");
  lines.Number("     P.d/m: ", static_cast<float>(gradient), 2, " mbar/m");
}

void AddHeadLines(const Project& project, int pipe, DetailLines& lines) {
  const int head = project.PipeHead[pipe];
  lines.Line("    Head number" + SignedText(head) + " of" + SignedText(project.HeadCount));
  lines.Number("   Node no: ", static_cast<float>(project.PipeEndNode[pipe]), 0);
  lines.Number(" Head code: ", project.HeadCode[head], 0);
  lines.Number("   Orifice: ", std::fabs(project.HeadOrifice[head]), 1, " mm");
  lines.Number("'K' factor: ", project.HeadK[head], 2);
  lines.Number("      Area: ", project.HeadArea[head], 2, " m2");
  lines.Number("Min. press: ", project.HeadMinPress[head], 3, " bar");
  lines.Number("Reqd. dens: ", project.HeadDensity[head], 2, " mm/min");
  lines.Number("'x' co-ord: ", project.HeadX[head], 3, " m");
  lines.Number("'y' co-ord: ", project.HeadY[head], 3, " m");
  lines.Number("'z' co-ord: ", project.PipeZ[pipe], 3, " m");
}

void AddHeadResultLines(const Project& project, int head, DetailLines& lines) {
  const float area = project.HeadArea[head];
  const float flow = project.HeadFlow[head];
  lines.Number(" Flow rate: ", flow, 1, " L/min");
  lines.Number(" Act. dens: ", area > 0.0F ? flow / area : 0.0F, 2, " mm/min");
  lines.Number("  Pressure: ", project.HeadPressure[head], 3, " bar");
  lines.Number("    Height: ", HeightAboveSource(project, head), 3, " m");
}

}  // namespace

std::string ShowPipeDetails(Session& session, int pipe) {
  Project& project = session.project;
  project.PipeHint = "Start node" + SignedText(project.PipeStartNode[pipe]) + "   End node" +
                     SignedText(project.PipeEndNode[pipe]);
  const bool calculated = IsCalculated(project);
  DetailLines lines;
  AddPipeLines(project, pipe, lines);
  AddPlaceLines(project, pipe, lines);
  if (calculated) AddResultLines(project, pipe, lines);
  if (project.PipeHead[pipe] > 0) {
    AddHeadLines(project, pipe, lines);
    if (calculated) AddHeadResultLines(project, project.PipeHead[pipe], lines);
  }
  return lines.Text() + "End of details for pipe" + SignedText(pipe);
}

std::string DirectionWords(float direction) {
  struct Compass {
    float direction;
    const char* word;
  };
  static constexpr std::array kCompass{
      Compass{0, "North"},         Compass{45, "North East"},      Compass{90, "East"},
      Compass{135, "South East"},  Compass{180, "South"},          Compass{225, "South West"},
      Compass{270, "West"},        Compass{315, "North West"},     Compass{360, "North"},
      Compass{kDirectionUp, "Up"}, Compass{kDirectionDown, "Down"}};
  for (const Compass& row : kCompass) {
    if (direction == row.direction) return row.word;
  }
  return PlainText(direction) + " deg from N";
}

}  // namespace zeb
