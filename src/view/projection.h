#pragma once

#include "model/project.h"
#include "platform/drawing_surface.h"
#include "view/view_bounds.h"

namespace zeb {

// A point on the view's plane before it is scaled: metres to the right and up.
struct PlanePoint {
  double across = 0.0;
  double up = 0.0;
};

// Maps the world to the picture, for the view in force. Both directions fill the picture, so their
// scales differ.
class Projection {
 public:
  // Isometrics look at every pipe to find their frame.
  Projection(const Project& project, const ViewBounds& bounds);

  [[nodiscard]] Point ToPicture(float x, float y, float z) const;

  // Keeps the mapping of a plan, for the way back from the picture.
  void StorePlanMapping(SystemValues& values) const;

 private:
  // The point at the picture's lower left, and picture units per metre.
  struct Frame {
    float across = 0.0F;
    float up = 0.0F;
    float scale_x = 0.0F;
    float scale_y = 0.0F;
  };

  [[nodiscard]] Frame PlanFrame() const;
  [[nodiscard]] Frame ElevationFrame() const;
  [[nodiscard]] Frame IsometricFrame(const Project& project) const;
  [[nodiscard]] PlanePoint OnPlane(double x, double y, double z) const;
  [[nodiscard]] PlanePoint OnIsometricPlane(double x, double y, double z) const;

  int view_;
  ViewBounds bounds_;
  Frame frame_;
};

// The world position under a point of the last plan drawn.
[[nodiscard]] Point FromPlanPicture(const SystemValues& values, Point picture);

}  // namespace zeb
