#include "view/view_bounds.h"

#include "view/view_modes.h"

namespace zeb {
namespace {

constexpr float kZoomMargin = 1.0F;

float NetworkMargin(float max_x) {
  if (max_x > 400.0F) return 20.0F;
  return max_x > 100.0F ? 18.0F : 10.0F;
}

ViewBounds WidenedBy(float margin, ViewBounds bounds) {
  bounds.margin = margin;
  bounds.x_low -= margin;
  bounds.x_high += margin;
  bounds.y_low -= margin;
  bounds.y_high += margin;
  return bounds;
}

}  // namespace

ViewBounds WorkingBounds(const SystemValues& values) {
  if (IsZoomed(values)) {
    return WidenedBy(kZoomMargin, {.x_low = values.ZoomX1,
                                   .x_high = values.ZoomX2,
                                   .y_low = values.ZoomY1,
                                   .y_high = values.ZoomY2,
                                   .z_low = values.ZoomZ1,
                                   .z_high = values.ZoomZ2});
  }
  return NetworkBounds(values);
}

ViewBounds NetworkBounds(const SystemValues& values) {
  return WidenedBy(NetworkMargin(values.MaxX), {.x_low = values.MinX,
                                                .x_high = values.MaxX,
                                                .y_low = values.MinY,
                                                .y_high = values.MaxY,
                                                .z_low = values.MinZ,
                                                .z_high = values.MaxZ});
}

bool IsPipeShown(const Project& project, int pipe) {
  if (IsPlan(project)) return true;
  const bool box_pending =
      project.ZoomState == zoom::kBoxAwaited || project.ZoomState == zoom::kBoxDragged;
  if (IsIsometric(project) && box_pending) return false;
  return !IsZoomed(project) || !HeightsRestricted(project) || project.PipeSelected[pipe] != 0;
}

}  // namespace zeb
