#include "view/box_selection.h"

#include <algorithm>

#include "view/pipe_drawing.h"
#include "view/view_modes.h"

namespace zeb {
namespace {

struct HeightRange {
  float low = 9999.0F;
  float high = -9999.0F;

  void Include(float height) {
    low = std::min(low, height);
    high = std::max(high, height);
  }
};

bool WithinLimits(const Project& project, float height) {
  if (!HeightsRestricted(project)) return true;
  return height >= project.MinZLimit && height <= project.MaxZLimit;
}

void StoreZoomHeights(Project& project, HeightRange range) {
  if (range.low == range.high) range = {range.low - 0.5F, range.high + 0.5F};
  const bool restricted = HeightsRestricted(project);
  project.ZoomZ1 = restricted ? project.MinZLimit : range.low;
  project.ZoomZ2 = restricted ? project.MaxZLimit : range.high;
}

template <class MiddleOf>
bool SelectPipes(Project& project, const Box& box, MiddleOf middle_of) {
  HeightRange range;
  bool any = false;
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    project.PipeSelected[pipe] = 0;
    if (!box.Holds(middle_of(pipe))) continue;
    const float height = (project.PipeZ[project.PipeUpstream[pipe]] + project.PipeZ[pipe]) / 2;
    range.Include(height);
    if (!WithinLimits(project, height)) continue;
    project.PipeSelected[pipe] = 1;
    any = true;
  }
  if (any) StoreZoomHeights(project, range);
  return any;
}

}  // namespace

Box Box::Normalised() const {
  return {{std::min(low.x, high.x), std::min(low.y, high.y)},
          {std::max(low.x, high.x), std::max(low.y, high.y)}};
}

bool Box::Holds(Point point) const {
  return point.x > low.x && point.x < high.x && point.y > low.y && point.y < high.y;
}

bool SelectPipesInPicture(Project& project, const Box& box) {
  return SelectPipes(project, box, [&](int pipe) { return PictureMiddle(project, pipe); });
}

bool SelectPipesInWorld(Project& project, const Box& box) {
  return SelectPipes(project, box, [&](int pipe) {
    const int start = project.PipeUpstream[pipe];
    return Point{(project.PipeX[start] + project.PipeX[pipe]) / 2,
                 (project.PipeY[start] + project.PipeY[pipe]) / 2};
  });
}

}  // namespace zeb
