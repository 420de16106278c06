#include "view/pan.h"

#include <algorithm>
#include <cmath>

#include "view/projection.h"
#include "view/view_bounds.h"
#include "view/view_modes.h"
#include "view/zoom.h"

namespace zeb {
namespace {

// The directions that an arrow moves in, by its index.
bool GoesNorth(int index) { return index == 0 || index == 1 || index == 7; }
bool GoesEast(int index) { return index >= 1 && index <= 3; }
bool GoesSouth(int index) { return index >= 3 && index <= 5; }
bool GoesWest(int index) { return index >= 5 && index <= 7; }

void MoveUp(float& low, float& high, float step, float limit) {
  high = std::min(high + step, limit);
  low = high - step;
}

void MoveDown(float& low, float& high, float step, float limit) {
  low = std::max(low - step, limit);
  high = low + step;
}

void MoveZoomBox(SystemValues& values, int index) {
  const float width = values.ZoomX2 - values.ZoomX1;
  const float height = values.ZoomY2 - values.ZoomY1;
  if (GoesNorth(index)) MoveUp(values.ZoomY1, values.ZoomY2, height, values.MaxY);
  if (GoesEast(index)) MoveUp(values.ZoomX1, values.ZoomX2, width, values.MaxX);
  if (GoesSouth(index)) MoveDown(values.ZoomY1, values.ZoomY2, height, values.MinY);
  if (GoesWest(index)) MoveDown(values.ZoomX1, values.ZoomX2, width, values.MinX);
}

constexpr float kNotchFactor = 1.25F;
constexpr float kSmallestWindow = 2.0F;  // m
// A zoomed plan shows this much around its box, m.
constexpr float kAroundBox = 0.5F;

bool IsBoxPending(const SystemValues& values) {
  return values.ZoomState == zoom::kBoxAwaited || values.ZoomState == zoom::kBoxDragged;
}

// The part of the world on a plan, in m.
Box PlanWindow(const ViewBounds& bounds) {
  const float edge = bounds.margin / 2;
  return {{bounds.x_low + edge, bounds.y_low + edge}, {bounds.x_high - edge, bounds.y_high - edge}};
}

float Width(const Box& box) { return box.high.x - box.low.x; }
float Height(const Box& box) { return box.high.y - box.low.y; }

Box WholeNetworkWindow(const SystemValues& values) { return PlanWindow(NetworkBounds(values)); }

// Without a pipe in it, the window's heights are those of the network, and isometrics, which would
// have nothing to show, drop the zoom.
void ShowPlanWindow(Session& session, const Box& window) {
  Project& project = session.project;
  const Box box{{window.low.x + kAroundBox, window.low.y + kAroundBox},
                {window.high.x - kAroundBox, window.high.y - kAroundBox}};
  StoreZoomBox(project, box);
  const bool any = SelectPipesInWorld(project, box);
  if (!any) {
    project.ZoomZ1 = project.MinZ;
    project.ZoomZ2 = project.MaxZ;
  }
  project.ZoomKept = any ? 1 : 0;
  project.ZoomState = zoom::kZoomed;
  project.ViewMode = view::kPlan;
  project.ViewTitle = "Zoomed in plan";
  session.platform.shell.Redraw();
}

Box ScaledAbout(Point centre, float factor, const Box& window) {
  return {{centre.x - (centre.x - window.low.x) / factor,
           centre.y - (centre.y - window.low.y) / factor},
          {centre.x + (window.high.x - centre.x) / factor,
           centre.y + (window.high.y - centre.y) / factor}};
}

// How far a window can move one way before its middle leaves the network.
float Shift(float wanted, float middle, float low, float high) {
  return std::clamp(wanted, std::min(low - middle, 0.0F), std::max(high - middle, 0.0F));
}

}  // namespace

void pan_Click(Session& session, int index) {
  Project& project = session.project;
  if (project.PanLocked == 1) return;
  MoveZoomBox(project, index);
  if (!SelectPipesInWorld(project, ZoomBox(project))) {
    session.platform.shell.SetPanel(Panel::kHint,
                                    "No centres of any pipes found in new pan position");
    return;
  }
  project.ZoomState = zoom::kZoomed;
  session.platform.shell.Redraw();
}

void ZoomAtPointer(Session& session, Point pointer, int notches) {
  const Project& project = session.project;
  if (!IsPlan(project) || IsBoxPending(project) || project.PipeCount == 0) return;
  const Box window = PlanWindow(WorkingBounds(project));
  const float closest = std::min(Width(window), Height(window)) / kSmallestWindow;
  const float factor =
      std::min(std::pow(kNotchFactor, static_cast<float>(notches)), std::max(closest, 1.0F));
  const Box scaled = ScaledAbout(FromPlanPicture(project, pointer), factor, window);
  const Box whole = WholeNetworkWindow(project);
  if (Width(scaled) >= Width(whole) && Height(scaled) >= Height(whole)) {
    FitAll(session);
  } else {
    ShowPlanWindow(session, scaled);
  }
}

void DragPlan(Session& session, Point from, Point to) {
  const Project& project = session.project;
  if (!IsPlan(project) || !IsZoomed(project)) return;
  Box window = PlanWindow(WorkingBounds(project));
  const Point grabbed = FromPlanPicture(project, from);
  const Point dropped = FromPlanPicture(project, to);
  const float dx =
      Shift(grabbed.x - dropped.x, (window.low.x + window.high.x) / 2, project.MinX, project.MaxX);
  const float dy =
      Shift(grabbed.y - dropped.y, (window.low.y + window.high.y) / 2, project.MinY, project.MaxY);
  window = {{window.low.x + dx, window.low.y + dy}, {window.high.x + dx, window.high.y + dy}};
  ShowPlanWindow(session, window);
}

void FitAll(Session& session) {
  Project& project = session.project;
  if (IsBoxPending(project)) return;
  project.ZoomState = zoom::kNone;
  project.ZoomKept = 0;
  if (IsPlan(project)) {
    project.ViewMode = view::kPlan;
    project.ViewTitle = "Plan";
  }
  session.platform.shell.Redraw();
}

}  // namespace zeb
