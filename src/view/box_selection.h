#pragma once

#include "model/project.h"
#include "platform/drawing_surface.h"

namespace zeb {

// Corners of a box; after Normalised(), `low` holds the lower values.
struct Box {
  Point low;
  Point high;

  [[nodiscard]] Box Normalised() const;
  // Strictly: a point on an edge is outside.
  [[nodiscard]] bool Holds(Point point) const;
};

// Selects the pipes whose middles lie in the box and, with restricted heights, within the limits,
// and no others. The heights of the zoom become those of the middles, or the limits. False, with
// the heights as they were, when no pipe is selected.
bool SelectPipesInPicture(Project& project, const Box& box);  // box in picture units
bool SelectPipesInWorld(Project& project, const Box& box);    // box in m, seen from above

}  // namespace zeb
