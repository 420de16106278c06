#include "view/rubber_box.h"

#include "view/view_modes.h"

namespace zeb {

RubberBox RubberBox::OfZoom(SystemValues& values) {
  return {values.ZoomState, {values.ZoomX1, values.ZoomY1}, {values.ZoomX2, values.ZoomY2}};
}

RubberBox RubberBox::OfHeads(SystemValues& values) {
  return {values.HeadBoxState,
          {values.HeadBoxX1, values.HeadBoxY1},
          {values.HeadBoxX2, values.HeadBoxY2}};
}

bool RubberBox::Begin(DrawingSurface& surface, Point at) {
  if (state_ != zoom::kBoxAwaited) return false;
  state_ = zoom::kBoxDragged;
  Store({at, at});
  Invert(surface);
  return true;
}

bool RubberBox::Drag(DrawingSurface& surface, Point to) {
  if (state_ != zoom::kBoxDragged) return false;
  Invert(surface);
  Store({{first_.x, first_.y}, to});
  Invert(surface);
  return true;
}

bool RubberBox::End(DrawingSurface& surface) {
  if (state_ != zoom::kBoxDragged) return false;
  Invert(surface);
  Store(Corners().Normalised());
  return true;
}

void RubberBox::Invert(DrawingSurface& surface) const {
  const Box box = Corners();
  surface.InvertBox(box.low, box.high, {PaletteColour(4)});
}

void RubberBox::Store(const Box& box) {
  first_.x = box.low.x;
  first_.y = box.low.y;
  second_.x = box.high.x;
  second_.y = box.high.y;
}

}  // namespace zeb
