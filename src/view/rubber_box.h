#pragma once

#include "model/project.h"
#include "platform/drawing_surface.h"
#include "view/box_selection.h"

namespace zeb {

// A box that is dragged on the picture and undoes itself. It lives in values of the project, so
// that a redraw and the next command know of it.
class RubberBox {
 public:
  static RubberBox OfZoom(SystemValues& values);
  static RubberBox OfHeads(SystemValues& values);

  // Each step works only in its state: begins a box that is awaited, moves or ends the one that is
  // dragged. True when it did.
  bool Begin(DrawingSurface& surface, Point at);
  bool Drag(DrawingSurface& surface, Point to);
  // Takes the box off the picture and puts its corners in order.
  bool End(DrawingSurface& surface);

 private:
  struct Corner {
    float& x;
    float& y;
  };

  RubberBox(Int16& state, Corner first, Corner second)
      : state_(state), first_(first), second_(second) {}

  void Invert(DrawingSurface& surface) const;
  void Store(const Box& box);
  [[nodiscard]] Box Corners() const { return {{first_.x, first_.y}, {second_.x, second_.y}}; }

  Int16& state_;
  Corner first_;
  Corner second_;
};

}  // namespace zeb
