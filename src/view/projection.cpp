#include "view/projection.h"

#include <algorithm>
#include <cmath>

#include "view/view_modes.h"

namespace zeb {
namespace {

// Isometric axes rise 30 degrees from the horizontal.
constexpr double kPi = 3.1415926;
const double kCos30 = std::cos(30.0 * kPi / 180.0);
const double kSin30 = std::sin(30.0 * kPi / 180.0);

// Elevations leave half a metre at the left and below the lowest pipe.
constexpr float kElevationOrigin = 0.5F;

// The smallest rectangle around points. The upper bounds never fall below 0.
struct Extent {
  double across_low = 999999.9F;
  double across_high = 0.0;
  double up_low = 999999.9F;
  double up_high = 0.0;

  void Include(PlanePoint point) {
    across_low = std::min(across_low, point.across);
    across_high = std::max(across_high, point.across);
    up_low = std::min(up_low, point.up);
    up_high = std::max(up_high, point.up);
  }
  void Widen(double margin) {
    across_low -= margin;
    across_high += margin;
    up_low -= margin;
    up_high += margin;
  }
};

}  // namespace

Projection::Projection(const Project& project, const ViewBounds& bounds)
    : view_(IsPlan(project) ? view::kPlan : int{project.ViewMode}), bounds_(bounds) {
  if (view_ == view::kPlan) {
    frame_ = PlanFrame();
  } else if (IsElevation(project)) {
    frame_ = ElevationFrame();
  } else {
    frame_ = IsometricFrame(project);
  }
}

Point Projection::ToPicture(float x, float y, float z) const {
  const PlanePoint point = OnPlane(x, y, z);
  return {static_cast<float>((point.across - frame_.across) * frame_.scale_x),
          static_cast<float>(DrawingSurface::kHeight - (point.up - frame_.up) * frame_.scale_y)};
}

void Projection::StorePlanMapping(SystemValues& values) const {
  if (view_ != view::kPlan) return;
  values.ViewOriginX = frame_.across;
  values.ViewOriginY = frame_.up;
  values.ViewScaleX = frame_.scale_x;
  values.ViewScaleY = frame_.scale_y;
  values.PicLogWidth = DrawingSurface::kWidth;
  values.PicLogHeight = DrawingSurface::kHeight;
}

Projection::Frame Projection::PlanFrame() const {
  const float margin = bounds_.margin;
  return {.across = bounds_.x_low + margin / 2,
          .up = bounds_.y_low + margin / 2,
          .scale_x = DrawingSurface::kWidth / ((bounds_.x_high - bounds_.x_low) - margin),
          .scale_y = DrawingSurface::kHeight / ((bounds_.y_high - bounds_.y_low) - margin)};
}

Projection::Frame Projection::ElevationFrame() const {
  const float width =
      view_ == view::kFront ? bounds_.x_high - bounds_.x_low : bounds_.y_high - bounds_.y_low;
  const float height = (bounds_.z_high - bounds_.z_low) + bounds_.margin;
  return {.across = kElevationOrigin,
          .up = kElevationOrigin,
          .scale_x = DrawingSurface::kWidth / width,
          .scale_y = DrawingSurface::kHeight / height};
}

// A zoomed isometric is framed on the selected pipes alone.
Projection::Frame Projection::IsometricFrame(const Project& project) const {
  const bool zoomed = IsZoomed(project);
  Extent extent;
  const auto include = [&](int end) {
    extent.Include(OnIsometricPlane(project.PipeX[end], project.PipeY[end], project.PipeZ[end]));
  };
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    if (zoomed && project.PipeSelected[pipe] == 0) continue;
    include(project.PipeUpstream[pipe]);
    include(pipe);
  }
  extent.Widen(zoomed ? bounds_.margin : bounds_.margin / 2);
  return {
      .across = static_cast<float>(extent.across_low),
      .up = static_cast<float>(extent.up_low),
      .scale_x =
          static_cast<float>(DrawingSurface::kWidth / (extent.across_high - extent.across_low)),
      .scale_y = static_cast<float>(DrawingSurface::kHeight / (extent.up_high - extent.up_low))};
}

PlanePoint Projection::OnPlane(double x, double y, double z) const {
  switch (view_) {
    case view::kPlan:
      return {x, y};
    case view::kFront:
      return {x - bounds_.x_low, (z - bounds_.z_low) + 1};
    case view::kSide:
      return {bounds_.y_high - y, (z - bounds_.z_low) + 1};
    default:
      return OnIsometricPlane(x, y, z);
  }
}

// East and north run at 30 degrees to either side of the line of sight; heights stay at full scale.
PlanePoint Projection::OnIsometricPlane(double x, double y, double z) const {
  const auto& [margin, x_low, x_high, y_low, y_high, z_low, z_high] = bounds_;
  double across = 0.0;
  double away = 0.0;
  switch (view_) {
    case view::kSouthWest:
      across = x - y - x_low + y_low;
      away = x + y - x_low + y_low;
      break;
    case view::kSouthEast:
      across = y - y_low - x_high + x;
      away = y - y_low + x_high - x;
      break;
    case view::kNorthWest:
      across = y_high - y - x + x_low;
      away = y_high - y + x - x_low;
      break;
    default:
      across = x_high - x - y_high + y;
      away = x_high - x + y_high - y;
  }
  const bool depth_shifts = view_ == view::kSouthWest || view_ == view::kNorthEast;
  const double shift = depth_shifts ? y_high - y_low : x_high - x_low;
  return {(across + shift) * kCos30, (z - z_low) + away * kSin30};
}

Point FromPlanPicture(const SystemValues& values, Point picture) {
  return {picture.x / values.ViewScaleX + values.ViewOriginX,
          (DrawingSurface::kHeight - picture.y) / values.ViewScaleY + values.ViewOriginY};
}

}  // namespace zeb
