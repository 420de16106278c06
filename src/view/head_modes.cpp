#include "view/head_modes.h"

#include <utility>

#include "calc/operating_heads.h"
#include "view/picks.h"
#include "view/rubber_box.h"
#include "view/view_modes.h"

namespace zeb {
namespace {

void PressHead(PointerContext& context) { LookupHead(context.session.project, context.at); }

// A second release, as after a double click, finds nothing picked.
void ReleaseHead(PointerContext& context) {
  const int head = std::exchange(context.session.project.PickedPipe, Int16());
  if (head > 0) ToggleHead(context.session, head);
}

void PressHeadBox(PointerContext& context) {
  if (!RubberBox::OfHeads(context.session.project).Begin(context.surface, context.at)) return;
  context.session.platform.shell.SetPanel(
      Panel::kHint,
      "Still holding mouse button down, move to include heads required to be on/off and release "
      "button");
}

void DragHeadBox(PointerContext& context) {
  RubberBox::OfHeads(context.session.project).Drag(context.surface, context.at);
}

void ReleaseHeadBox(PointerContext& context) {
  Project& project = context.session.project;
  if (!RubberBox::OfHeads(project).End(context.surface)) return;
  project.HeadBoxState = zoom::kBoxAwaited;
  ToggleHeadsInBox(context.session, project.HeadBoxX1, project.HeadBoxY1, project.HeadBoxX2,
                   project.HeadBoxY2);
}

void LeaveHeadBox(PointerContext& context) {
  RubberBox::OfHeads(context.session.project).End(context.surface);
}

}  // namespace

PointerMode PickHeadMode() {
  return {.mode = kPickHeadCommand, .press = PressHead, .release = ReleaseHead};
}

PointerMode HeadBoxMode() {
  return {.mode = kHeadBoxCommand,
          .press = PressHeadBox,
          .move = DragHeadBox,
          .release = ReleaseHeadBox,
          .leave = LeaveHeadBox};
}

}  // namespace zeb
