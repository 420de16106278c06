#pragma once

#include "model/project.h"

namespace zeb {

// The part of the world that a view shows, in metres.
struct ViewBounds {
  float margin = 0.0F;
  float x_low = 0.0F;
  float x_high = 0.0F;
  float y_low = 0.0F;
  float y_high = 0.0F;
  float z_low = 0.0F;
  float z_high = 0.0F;
};

// The zoom box, or else the whole network, each with its margin.
[[nodiscard]] ViewBounds WorkingBounds(const SystemValues& values);
// The network's width alone decides how wide its margin is.
[[nodiscard]] ViewBounds NetworkBounds(const SystemValues& values);

// Whether the view shows a pipe at all. Height limits hide pipes in zoomed elevations and
// isometrics; an isometric stays blank until a box that was begun is finished.
[[nodiscard]] bool IsPipeShown(const Project& project, int pipe);

}  // namespace zeb
