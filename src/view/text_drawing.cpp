#include "view/text_drawing.h"

#include <array>
#include <cmath>
#include <numbers>
#include <optional>

#include "view/pipe_drawing.h"

namespace zeb {
namespace {

constexpr float kArrowLength = 6.0F;

// Texts stand off their point; at a head a little further.
void DrawTextAt(DrawingSurface& surface, Point point, const std::string& text) {
  surface.Text({point.x + 4, point.y - 2}, text);
}

Point NodePoint(const Project& project, int pipe) {
  const Point end = PictureEnd(project, pipe);
  return project.PipeHead[pipe] > 0 ? Point{end.x + 2, end.y + 1} : end;
}

// Whole degrees, from straight down the picture and towards its right; none for a pipe that has no
// length on the picture.
std::optional<int> PictureBearing(Point from, Point to) {
  constexpr float kNoLength = 0.2F;
  const float dx = to.x - from.x;
  const float dy = to.y - from.y;
  if (std::fabs(dy) > kNoLength) {
    int angle = static_cast<int>(std::nearbyint(std::atan(dx / dy) * 180.0 / std::numbers::pi));
    if (dy < 0) angle += 180;
    if (dy > 0 && dx < 0) angle += 360;
    return angle > 360 ? angle - 360 : angle;
  }
  if (std::fabs(dx) < kNoLength) return std::nullopt;
  return to.x > from.x ? 90 : 270;
}

void DrawArrow(const Project& project, DrawingSurface& surface, int pipe, bool forward) {
  constexpr Pen kPen{PaletteColour(13)};
  const Point middle = PictureMiddle(project, pipe);
  const auto bearing = PictureBearing(PictureStart(project, pipe), PictureEnd(project, pipe));
  if (!bearing) return;
  const auto wing_tip = [&](int turn) {
    const double angle = (*bearing + turn) * std::numbers::pi / 180.0;
    return Point{middle.x + kArrowLength * static_cast<float>(std::sin(angle)),
                 middle.y + kArrowLength * static_cast<float>(std::cos(angle))};
  };
  surface.Line(wing_tip(forward ? 225 : 315), middle, kPen);
  surface.Line(middle, wing_tip(forward ? 135 : 45), kPen);
}

void DrawItemArrow(const Project& project, DrawingSurface& surface, TextArrow arrow, int pipe) {
  if (arrow == TextArrow::kNone) return;
  const bool forward = arrow == TextArrow::kDrawnDirection || project.PipeFlow[pipe] > 0.0F;
  DrawArrow(project, surface, pipe, forward);
}

}  // namespace

void DrawPipeTexts(const Project& project, DrawingSurface& surface, DisplayTexts& texts, int pipe) {
  const std::string text = texts.PipeText(pipe);
  if (text.empty()) return;
  const bool at_node = texts.Place() == TextPlace::kNode;
  DrawTextAt(surface, at_node ? NodePoint(project, pipe) : PictureMiddle(project, pipe), text);
  if (pipe == 1) {
    const std::string source = texts.SourceText();
    if (!source.empty()) DrawTextAt(surface, PictureStart(project, pipe), source);
  }
  const std::string head_flow = texts.HeadFlowText(pipe);
  if (!head_flow.empty()) {
    const Point end = PictureEnd(project, pipe);
    surface.Text({end.x + 2, end.y - 2}, head_flow);
  }
  DrawItemArrow(project, surface, texts.Arrow(), pipe);
}

}  // namespace zeb
