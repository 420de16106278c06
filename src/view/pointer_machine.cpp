#include "view/pointer_machine.h"

#include <algorithm>
#include <string>
#include <utility>

#include "services/procedure.h"
#include "view/display_items.h"
#include "view/draw_view.h"
#include "view/head_modes.h"
#include "view/pan.h"
#include "view/picks.h"
#include "view/pipe_highlight.h"
#include "view/pointer_modes.h"
#include "view/zoom_mode.h"

namespace zeb {

PointerMachine::PointerMachine(Session& session, DrawingSurface& surface)
    : session_(session),
      surface_(surface),
      details_(session, surface),
      inspector_(session, surface) {
  AddMode({.mode = pointer_mode::kView,
           .press = [this](PointerContext& context) { PressInViewMode(context.at); }});
  AddMode(ZoomBoxMode());
  AddMode(PickHeadMode());
  AddMode(HeadBoxMode());
}

void PointerMachine::AddMode(PointerMode mode) { modes_.push_back(std::move(mode)); }

void PointerMachine::OnDoubleClick(int editing_mode, std::function<void(int pipe)> edit) {
  editing_mode_ = editing_mode;
  edit_ = std::move(edit);
}

void PointerMachine::pic1_MouseDown(MouseButton button, Point at) {
  if (button == MouseButton::kMiddle) {
    dragging_plan_ = true;
    dragged_from_ = at;
    return;
  }
  Procedure handler(session_, "ZEBF03", "pic1_MouseDown");
  handler.Step(10, [&] { FollowPress(at); });
  if (button == MouseButton::kRight) {
    handler.Step(20, [&] { LeaveMode("pic1_MouseDown"); });
    handler.Step(30, [&] { ShowDisplayMenu(); });
    return;
  }
  Run("pic1_MouseDown", at, &PointerMode::press);
}

void PointerMachine::pic1_MouseMove(Point at) {
  if (dragging_plan_) {
    Procedure handler(session_, "ZEBF03", "pic1_MouseMove");
    handler.Step(10, [&] { DragPlan(session_, std::exchange(dragged_from_, at), at); });
    return;
  }
  Run("pic1_MouseMove", at, &PointerMode::move);
}

void PointerMachine::pic1_MouseUp(MouseButton button, Point at) {
  if (button == MouseButton::kMiddle) {
    dragging_plan_ = false;
    return;
  }
  Run("pic1_MouseUp", at, &PointerMode::release);
}

void PointerMachine::pic1_DblClick(MouseButton button) {
  Procedure handler(session_, "ZEBF03", "pic1_DblClick");
  handler.Step(10, [&] {
    if (button == MouseButton::kMiddle) FitAll(session_);
    const Project& project = session_.project;
    const int pipe = project.PickedPipe;
    if (button != MouseButton::kLeft || !edit_ || project.CommandMode == editing_mode_) return;
    if (project.PipeStartNode[pipe] > 0 && project.PipeEndNode[pipe] > 0) edit_(pipe);
  });
}

void PointerMachine::pic1_MouseWheel(Point at, int notches) {
  Procedure handler(session_, "ZEBF03", "pic1_MouseWheel");
  handler.Step(10, [&] { ZoomAtPointer(session_, at, notches); });
}

// The hint stays.
void PointerMachine::KeyEscape() {
  LeaveMode("pic1_KeyPress");
  session_.platform.shell.SetPanel(Panel::kMode, "VIEW");
}

void PointerMachine::Run(const char* procedure, Point at,
                         PointerMode::Action PointerMode::*action) {
  const auto mode =
      std::ranges::find(modes_, int{session_.project.CommandMode}, &PointerMode::mode);
  if (mode == modes_.end() || !((*mode).*action)) return;
  PointerContext context{session_, surface_, at};
  Procedure handler(session_, "ZEBF03", procedure);
  handler.Step(50, [&] { ((*mode).*action)(context); });
}

void PointerMachine::FollowPress(Point at) {
  LookupPipe(session_.project, at);
  inspector_.SetData(session_.project.PickedPipe);
}

void PointerMachine::LeaveMode(const char* procedure) {
  Run(procedure, {}, &PointerMode::leave);
  if (session_.project.CommandMode == pointer_mode::kView) return;
  session_.project.CommandMode = pointer_mode::kView;
  session_.platform.shell.SetPanel(Panel::kMode, "VIEW");
}

void PointerMachine::ShowDisplayMenu() {
  const int item =
      session_.platform.shell.ShowPopup(DisplayMenuEntries(), session_.project.DisplayItem);
  if (item >= 0) PickDisplayItem(session_, item);
}

// A pipe that a redraw has wiped the mark off is marked again, also when it is pressed twice.
void PointerMachine::PressInViewMode(Point at) {
  Project& project = session_.project;
  project.MarkedNode = 0;
  LookupPipe(project, at);
  if (project.HighlightedPipe != project.PickedPipe) HighlightPipe(project, surface_, 0);
  project.HighlightedPipe = 0;
  if (project.PickedPipe > 0) details_.ShowPickedPipe();
}

}  // namespace zeb
