#include "view/pipe_drawing.h"

#include <cmath>

#include "view/view_modes.h"

namespace zeb {
namespace {

constexpr Colour kBlack = PaletteColour(0);
constexpr Colour kHeadBlue = PaletteColour(1);
constexpr Colour kPipeBlue = PaletteColour(9);
constexpr Colour kFaultRed = PaletteColour(12);
constexpr Colour kRemotePink = PaletteColour(13);
constexpr Colour kWhite = PaletteColour(15);
constexpr Colour kPlanHead{16711680};

constexpr std::optional<Colour> kNoFill;

// Valves from this number on show their name in isometrics.
constexpr int kFirstNamedValve = 9995;

Point Offset(Point point, float right, float down) { return {point.x + right, point.y + down}; }

Colour PipeColour(const Project& project, int pipe) {
  return project.PipeError[pipe] > 0 ? kFaultRed : kPipeBlue;
}

bool IsVertical(const Project& project, int pipe) {
  return std::fabs(project.PipeDirection[pipe]) == kDirectionUp;
}

bool IsHydrant(const Project& project, int pipe) { return project.PipeHydrant[pipe] > 1.0F; }

bool IsRemote(const Project& project, int head) {
  return head == project.MrHead1 || head == project.MrHead2 || head == project.MrHead3 ||
         head == project.MrHead4;
}

bool IsPicked(const Project& project, int head) {
  return project.SelectedHeadsMode == 1 && project.HeadOn[head] != 0;
}

bool IsUnpicked(const Project& project, int head) {
  return project.SelectedHeadsMode == 1 && project.HeadOn[head] == 0;
}

void DrawLine(const Project& project, DrawingSurface& surface, int pipe) {
  const int width = project.PipeSize[pipe] >= project.WeldSize ? 2 : 1;
  surface.Line(PictureStart(project, pipe), PictureEnd(project, pipe),
               {PipeColour(project, pipe), width});
}

void LabelRemotestHead(const Project& project, DrawingSurface& surface, int pipe) {
  if (IsCalculated(project) && project.HeadCount > 1 &&
      project.PipeHead[pipe] == project.RemotestHead) {
    surface.Text(Offset(PictureEnd(project, pipe), 5, -16), "MRH");
  }
}

// A coupling in a straight run, with no head or elbow to turn at.
bool HasStraightJoint(const Project& project, int pipe) {
  const int upstream = project.PipeUpstream[pipe];
  return upstream > 0 && project.PipeDirection[pipe] == project.PipeDirection[upstream] &&
         project.PipeHead[upstream] == 0 && project.PipeElbows[pipe] == 0;
}

// The outline tells the four remote heads, the fill those picked to operate.
void DrawPlanHead(const Project& project, DrawingSurface& surface, int pipe) {
  const int head = project.PipeHead[pipe];
  const auto fill = IsPicked(project, head) ? std::optional(kPipeBlue) : kNoFill;
  surface.Circle(PictureEnd(project, pipe), 4, {kPlanHead, IsRemote(project, head) ? 2 : 1}, fill);
  LabelRemotestHead(project, surface, pipe);
}

void DrawPlanSymbols(const Project& project, DrawingSurface& surface, int pipe) {
  const Point start = PictureStart(project, pipe);
  if (IsVertical(project, pipe)) {
    surface.Circle(start, 2, {PipeColour(project, pipe)}, kWhite);
  }
  if (HasStraightJoint(project, pipe)) surface.Circle(start, 1, {kBlack}, kWhite);
  if (IsHydrant(project, pipe)) {
    const Point end = PictureEnd(project, pipe);
    surface.Box(Offset(end, -6, -6), Offset(end, 6, 6), {kBlack}, kWhite);
    surface.Text(Offset(end, -3, -6), "H");
  }
  if (project.PipeHead[pipe] > 0) DrawPlanHead(project, surface, pipe);
}

// 1 when the head points up, -1 when it hangs; the pipe's own run outweighs the project's rule.
int HeadDirection(const Project& project, int pipe) {
  constexpr float kSteep = 60.0F;
  int direction = project.SprinklerOrient == 2 ? -1 : 1;
  const float run = project.PipeDirection[pipe];
  const float slope = project.PipeSlope[pipe];
  if (run == kDirectionDown || slope < -kSteep) direction = -1;
  if (run == kDirectionUp || slope > kSteep) direction = 1;
  return direction;
}

// An arrow on a stem.
void DrawHeadSymbol(const Project& project, DrawingSurface& surface, int pipe, Colour colour) {
  const Pen pen{colour, IsUnpicked(project, project.PipeHead[pipe]) ? 1 : 2};
  const auto up = static_cast<float>(HeadDirection(project, pipe));
  const Point foot = PictureEnd(project, pipe);
  const Point tip = Offset(foot, 0, -8 * up);
  surface.Line(foot, tip, pen);
  surface.Line(tip, Offset(foot, -4, -4 * up), pen);
  surface.Line(tip, Offset(foot, 4, -4 * up), pen);
}

Colour HeadColour(const Project& project, int head) {
  const bool below_duty = project.HeadOrifice[head] < 0.0F;
  return below_duty ? kFaultRed : kHeadBlue;
}

// A level pipe that runs along the line of sight shows as a circle.
bool RunsIntoPicture(const Project& project, int pipe) {
  if (project.PipeSlope[pipe] != 0.0F) return false;
  const float run = project.PipeDirection[pipe];
  return project.ViewMode == view::kFront ? run == 0.0F || run == 180.0F
                                          : run == 90.0F || run == 270.0F;
}

void DrawElevationSymbols(const Project& project, DrawingSurface& surface, int pipe) {
  if (RunsIntoPicture(project, pipe)) {
    surface.Circle(PictureStart(project, pipe), 2, {PipeColour(project, pipe)}, kNoFill);
  }
  const int head = project.PipeHead[pipe];
  if (head > 0) DrawHeadSymbol(project, surface, pipe, HeadColour(project, head));
}

void DrawIsometricSymbols(const Project& project, DrawingSurface& surface, int pipe) {
  const int valve = project.PipeValve[pipe];
  if (valve >= kFirstNamedValve) {
    surface.Text(Offset(PictureMiddle(project, pipe), -14, 0), project.ValveRefs[valve]);
  }
  if (IsHydrant(project, pipe)) surface.Text(Offset(PictureEnd(project, pipe), 5, -16), "HYD");
  const int head = project.PipeHead[pipe];
  if (head <= 0) return;
  DrawHeadSymbol(project, surface, pipe,
                 IsRemote(project, head) ? kRemotePink : HeadColour(project, head));
  LabelRemotestHead(project, surface, pipe);
}

}  // namespace

Point PictureStart(const Project& project, int pipe) {
  return {project.PipeScreenX1[pipe], project.PipeScreenY1[pipe]};
}

Point PictureEnd(const Project& project, int pipe) {
  return {project.PipeScreenX2[pipe], project.PipeScreenY2[pipe]};
}

Point PictureMiddle(const Project& project, int pipe) {
  const Point start = PictureStart(project, pipe);
  const Point end = PictureEnd(project, pipe);
  return {(start.x + end.x) / 2, (start.y + end.y) / 2};
}

void DrawPipe(const Project& project, DrawingSurface& surface, int pipe) {
  DrawLine(project, surface, pipe);
  if (IsPlan(project)) {
    DrawPlanSymbols(project, surface, pipe);
  } else if (IsElevation(project)) {
    DrawElevationSymbols(project, surface, pipe);
  } else {
    DrawIsometricSymbols(project, surface, pipe);
  }
}

}  // namespace zeb
