#pragma once

#include "model/model_state.h"
#include "model/system_values.h"

namespace zeb {

// The values of ViewMode. kPlanForBox is a plan on which a zoom box is awaited.
namespace view {
inline constexpr int kPlan = 1;
inline constexpr int kFront = 2;
inline constexpr int kSide = 3;
inline constexpr int kSouthWest = 4;
inline constexpr int kSouthEast = 5;
inline constexpr int kNorthWest = 6;
inline constexpr int kNorthEast = 7;
inline constexpr int kPlanForBox = 8;
}  // namespace view

// The values of ZoomState and HeadBoxState; the head box is never kZoomed.
namespace zoom {
inline constexpr int kNone = 0;
inline constexpr int kBoxAwaited = 1;
inline constexpr int kBoxDragged = 2;
inline constexpr int kZoomed = 3;
}  // namespace zoom

[[nodiscard]] inline bool IsPlan(const SystemValues& values) {
  return values.ViewMode <= view::kPlan || values.ViewMode == view::kPlanForBox;
}
[[nodiscard]] inline bool IsElevation(const SystemValues& values) {
  return values.ViewMode == view::kFront || values.ViewMode == view::kSide;
}
[[nodiscard]] inline bool IsIsometric(const SystemValues& values) {
  return values.ViewMode >= view::kSouthWest && values.ViewMode <= view::kNorthEast;
}
[[nodiscard]] inline bool IsZoomed(const SystemValues& values) {
  return values.ZoomState == zoom::kZoomed;
}

[[nodiscard]] inline bool IsCalculated(const SystemValues& values) {
  return values.ModelState == model_state::kCalculated;
}

// ZLimitOn is 1 while heights are free and 2 while they are restricted.
inline constexpr float kHeightsFree = 1.0F;
inline constexpr float kHeightsRestricted = 2.0F;
[[nodiscard]] inline bool HeightsRestricted(const SystemValues& values) {
  return values.ZLimitOn > 1.5F;
}

}  // namespace zeb
