#include "view/zoom_mode.h"

#include "view/pointer_command.h"
#include "view/pointer_modes.h"
#include "view/rubber_box.h"
#include "view/zoom.h"

namespace zeb {
namespace {

void PressZoomBox(PointerContext& context) {
  if (!RubberBox::OfZoom(context.session.project).Begin(context.surface, context.at)) return;
  ShowHint(context.session,
           "still holding mouse button down, move to include centres of pipes and release button");
}

void DragZoomBox(PointerContext& context) {
  RubberBox::OfZoom(context.session.project).Drag(context.surface, context.at);
}

void ReleaseZoomBox(PointerContext& context) {
  if (!RubberBox::OfZoom(context.session.project).End(context.surface)) return;
  ZoomToDraggedBox(context.session);
}

// The box goes off the picture, but its state stays.
void LeaveZoomBox(PointerContext& context) {
  RubberBox::OfZoom(context.session.project).End(context.surface);
}

}  // namespace

PointerMode ZoomBoxMode() {
  return {.mode = pointer_mode::kZoomBox,
          .press = PressZoomBox,
          .move = DragZoomBox,
          .release = ReleaseZoomBox,
          .leave = LeaveZoomBox};
}

}  // namespace zeb
