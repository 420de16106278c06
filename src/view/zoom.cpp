#include "view/zoom.h"

#include "view/draw_view.h"
#include "view/height_limits_form.h"
#include "view/pointer_command.h"
#include "view/pointer_modes.h"
#include "view/projection.h"
#include "view/view_modes.h"

namespace zeb {
namespace {

constexpr PointerCommand kZoomCommand{
    .mode = pointer_mode::kZoomBox,
    .word = "WHICH PIPES?",
    .hint = "hold mouse button down at bottom left hand corner of pipes you want to select",
    .pointer = PicturePointer::kArrow};

// The box is drawn on a plan, the only view whose mapping can be turned round.
void ShowFullPlan(Session& session) {
  session.project.ZoomState = zoom::kNone;
  session.project.ViewMode = view::kPlan;
  session.platform.shell.Redraw();
}

void AwaitBox(Session& session) {
  Project& project = session.project;
  project.ZoomState = zoom::kBoxAwaited;
  project.ViewTitle = "Zoom in on current plan";
  project.ViewMode = view::kPlanForBox;
  project.PanLocked = 1;
  EnterPointerCommand(session, kZoomCommand);
  session.platform.shell.ShowPanArrows(false);
}

void ShowPlanWord(Session& session) {
  session.project.ViewName = "Plan";
  session.platform.shell.SetPanel(Panel::kView, "Plan");
}

bool AsksToTryAgain(Session& session) {
  return UserAgrees(session.platform.dialogs, "Zoom Command",
                    "You have not selected any pipes do you wish to try again?");
}

void ShowZoomedPlan(Session& session) {
  Project& project = session.project;
  project.ViewMode = view::kPlan;
  project.ZoomState = zoom::kZoomed;
  project.ViewTitle = "Zoomed in plan";
  ViewCommandReset(session);
  session.platform.shell.Redraw();
  project.ZoomKept = 1;
}

}  // namespace

void Zinall(Session& session) {
  session.project.ZoomKept = 0;
  session.project.ZLimitOn = kHeightsFree;
  ShowPlanWord(session);
  ShowFullPlan(session);
  AwaitBox(session);
}

void Zinspec(Session& session) {
  session.project.ZLimitOn = kHeightsRestricted;
  HeightLimitsForm form(session);
  session.platform.shell.ShowModal(form);
  ShowPlanWord(session);
  if (!IsPlan(session.project)) ShowFullPlan(session);
  AwaitBox(session);
}

void Vheight(Session& session) {
  session.platform.shell.SetPanel(Panel::kMode, "Min/Max 'Z'");
  HeightLimitsForm form(session);
  session.platform.shell.ShowModal(form);
}

void ZoomToDraggedBox(Session& session) {
  Project& project = session.project;
  const Box box = ZoomBox(project);
  const bool any = SelectPipesInPicture(project, box);
  StoreZoomBox(
      project,
      Box{FromPlanPicture(project, box.low), FromPlanPicture(project, box.high)}.Normalised());
  if (any) {
    ShowZoomedPlan(session);
  } else {
    AskForAnotherBox(session);
  }
}

void AskForAnotherBox(Session& session) {
  Project& project = session.project;
  if (AsksToTryAgain(session)) {
    project.CommandMode = pointer_mode::kZoomBox;
    project.ZoomState = zoom::kBoxAwaited;
    return;
  }
  project.ZoomState = zoom::kNone;
  ViewCommandReset(session);
}

Box ZoomBox(const SystemValues& values) {
  return {{values.ZoomX1, values.ZoomY1}, {values.ZoomX2, values.ZoomY2}};
}

void StoreZoomBox(SystemValues& values, const Box& box) {
  values.ZoomX1 = box.low.x;
  values.ZoomY1 = box.low.y;
  values.ZoomX2 = box.high.x;
  values.ZoomY2 = box.high.y;
}

}  // namespace zeb
