#include "view/pipe_highlight.h"

#include <cmath>

#include "view/pipe_drawing.h"

namespace zeb {
namespace {

constexpr Colour kPlain = PaletteColour(9);
constexpr Colour kMarked = PaletteColour(10);

// A pipe that no redraw has placed yet.
bool IsUnplaced(Point start, Point end) {
  return start.x == 0.0F || start.y == 0.0F || end.y == 0.0F;
}

// A pipe that has next to no length on the picture also gets a circle.
void Repaint(const Project& project, DrawingSurface& surface, int pipe, Colour colour) {
  constexpr float kShort = 2.0F;
  if (pipe < 1 || pipe > project.PipeCount) return;
  const Point start = PictureStart(project, pipe);
  const Point end = PictureEnd(project, pipe);
  if (IsUnplaced(start, end)) return;
  const Pen pen{colour, project.PipeSize[pipe] > project.WeldSize ? 2 : 1};
  surface.Line(start, end, pen);
  if (std::fabs(end.x - start.x) < kShort && std::fabs(end.y - start.y) < kShort) {
    surface.Circle(start, 3, pen, std::nullopt);
  }
}

}  // namespace

void HighlightPipe(Project& project, DrawingSurface& surface, int pipe) {
  if (pipe == project.HighlightedPipe) return;
  Repaint(project, surface, project.HighlightedPipe, kPlain);
  Repaint(project, surface, pipe, kMarked);
  project.HighlightedPipe = pipe;
}

}  // namespace zeb
