#include "view/draw_view.h"

#include <cstdlib>
#include <optional>
#include <vector>

#include "calc/operating_heads.h"
#include "model/model_state.h"
#include "services/number_text.h"
#include "services/text.h"
#include "view/display_items.h"
#include "view/drawing_settings.h"
#include "view/pipe_drawing.h"
#include "view/projection.h"
#include "view/redraw_steps.h"
#include "view/text_drawing.h"
#include "view/view_bounds.h"
#include "view/view_modes.h"

namespace zeb {
namespace {

class Redraw {
 public:
  Redraw(Session& session, DrawingSurface& surface)
      : session_(session), project_(session.project), surface_(surface), steps_(session) {}

  void Run() {
    steps_.Step(10, [&] { ShowNodeRange(); });
    steps_.Step(20, [&] { PrepareSurface(); });
    steps_.Step(30, [&] { TakeNodesOnce(); });
    steps_.Step(40, [&] { CopyGeometry(); });
    steps_.Step(50, [&] { DisableStaleMenus(); });
    steps_.Step(60, [&] { SetBounds(); });
    steps_.Step(70, [&] { session_.platform.shell.Yield(); });
    DrawPipes();
    DrawTexts();
    steps_.Step(110, [&] { DrawMarkedNode(); });
    steps_.Step(120, [&] { ResumeHeadPicking(); });
  }

 private:
  void ShowNodeRange();
  void PrepareSurface();
  void TakeNodesOnce();
  void CopyGeometry();
  void DisableStaleMenus();
  void SetBounds();
  void DrawPipes();
  void DrawTexts();
  void DrawMarkedNode();
  void ResumeHeadPicking();
  void Place(const Projection& projection, int pipe);
  [[nodiscard]] bool IsDrawn(int pipe) const {
    return project_.PipeError[pipe] != -1 && IsPipeShown(project_, pipe);
  }

  Session& session_;
  Project& project_;
  DrawingSurface& surface_;
  RedrawSteps steps_;
  ViewBounds bounds_;
};

void Redraw::ShowNodeRange() {
  const std::string lowest = PlainText(project_.MinNode);
  const std::string highest = PlainText(project_.MaxNode);
  Shell& shell = session_.platform.shell;
  shell.SetPanel(Panel::kNodes, lowest + " : " + highest);
  shell.SetPanelTip(Panel::kNodes, "Min Node: " + lowest + " Max Node: " + highest);
  shell.SetBusyPointer(false);
}

void Redraw::PrepareSurface() {
  const DrawingSettings settings = ReadDrawingSettings(session_.settings);
  project_.ColourByClass = 0;
  surface_.SetTextStyle(settings.text);
  surface_.Clear(settings.background);
}

void Redraw::TakeNodesOnce() {
  if (project_.ShowNodesOnce != 1) return;
  project_.ShowNodesOnce = 0;
  project_.DisplayItem = display_item::kNodeNumbers;
}

void Redraw::CopyGeometry() {
  const PictureGeometry geometry = surface_.Geometry();
  project_.PicLeft = geometry.left;
  project_.PicTop = geometry.top;
  project_.PicWidth = geometry.width;
  project_.PicHeight = geometry.height;
}

void Redraw::DisableStaleMenus() {
  if (project_.DataChanged <= 0 || IsCalculated(project_)) return;
  session_.platform.shell.Enable(Feature::kDisplayMenu, false);
  session_.platform.shell.Enable(Feature::kPrintMenu, false);
}

void Redraw::SetBounds() {
  project_.PanLocked = 0;
  bounds_ = WorkingBounds(project_);
  project_.ViewMargin = bounds_.margin;
  session_.platform.shell.ShowPanArrows(IsZoomed(project_) && project_.ViewMode <= view::kPlan);
  ShowViewTitle(session_);
}

void Redraw::DrawPipes() {
  std::optional<Projection> projection;
  steps_.Step(75, [&] {
    projection.emplace(project_, bounds_);
    projection->StorePlanMapping(project_);
  });
  if (!projection) return;
  for (int pipe = 1; pipe <= project_.PipeCount; ++pipe) {
    steps_.Step(80, [&] {
      if (!IsDrawn(pipe)) return;
      Place(*projection, pipe);
      DrawPipe(project_, surface_, pipe);
    });
  }
}

void Redraw::Place(const Projection& projection, int pipe) {
  const auto on_picture = [&](int end) {
    return projection.ToPicture(project_.PipeX[end], project_.PipeY[end], project_.PipeZ[end]);
  };
  const Point start = on_picture(project_.PipeUpstream[pipe]);
  const Point end = on_picture(pipe);
  project_.PipeScreenX1[pipe] = start.x;
  project_.PipeScreenY1[pipe] = start.y;
  project_.PipeScreenX2[pipe] = end.x;
  project_.PipeScreenY2[pipe] = end.y;
}

void Redraw::DrawTexts() {
  if (project_.DisplayItem == display_item::kNone) return;
  steps_.Step(90, [&] {
    DisplayTexts texts(project_, project_.DisplayItem);
    for (int pipe = 1; pipe <= project_.PipeCount; ++pipe) {
      steps_.Step(100, [&] {
        if (IsDrawn(pipe)) DrawPipeTexts(project_, surface_, texts, pipe);
      });
    }
  });
}

void Redraw::DrawMarkedNode() {
  if (project_.MarkedNode == 0) return;
  const int pipe = std::abs(project_.MarkedNode);
  const bool at_start = project_.MarkedNode > 0;
  const Point node = at_start ? PictureStart(project_, pipe) : PictureEnd(project_, pipe);
  const int number = at_start ? project_.PipeStartNode[pipe] : project_.PipeEndNode[pipe];
  surface_.Text({node.x + 2, node.y}, PlainText(number));
}

// Picking goes on after a calculation that was given up. A head box that was drawn tells which way.
void Redraw::ResumeHeadPicking() {
  if (project_.SelectedHeadsMode != 1 || project_.ModelState != model_state::kChecked) return;
  project_.CommandMode = project_.HeadBoxY2 > 3.0F ? kHeadBoxCommand : kPickHeadCommand;
  session_.platform.shell.SetPanel(Panel::kMode, "OPERATING HEADS");
}

}  // namespace

void DrawView(Session& session, DrawingSurface& surface) {
  try {
    Redraw(session, surface).Run();
  } catch (const RedrawAborted&) {
    return;
  }
}

void ShowViewTitle(Session& session) {
  const Project& project = session.project;
  if (project.ViewTitle.empty()) return;  // before the first project
  std::string text = project.ViewTitle + " - " + project.ViewHint;
  if (HeightsRestricted(project) && project.ViewMode > view::kPlan && IsZoomed(project)) {
    text = project.ViewTitle + " showing pipes with midpoints between " +
           FixedNumber(project.MinZLimit, 5, 1) + " and " + FixedNumber(project.MaxZLimit, 5, 1) +
           "m";
  }
  session.platform.shell.SetPanel(Panel::kHint, text);
}

void PickDisplayItem(Session& session, int item) {
  session.project.DisplayItem = item;
  session.platform.shell.Redraw();
}

void Vpipes(Session& session) {
  session.project.ColourByClass = session.project.ColourByClass == 0 ? 1 : 0;
  session.platform.shell.Redraw();
}

}  // namespace zeb
