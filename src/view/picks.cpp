#include "view/picks.h"

#include <cmath>

#include "view/pipe_drawing.h"

namespace zeb {
namespace {

// The nearest distance so far; what is as far as the reach is out of it.
class Nearest {
 public:
  explicit Nearest(Point at) : at_(at) {}

  [[nodiscard]] bool IsNearer(Point point) {
    const float dx = point.x - at_.x;
    const float dy = point.y - at_.y;
    const float distance = std::sqrt(dx * dx + dy * dy);
    if (distance >= best_) return false;
    best_ = distance;
    return true;
  }

 private:
  static constexpr float kReach = 100.0F;

  Point at_;
  float best_ = kReach;
};

}  // namespace

void LookupNode(Project& project, Point at) {
  project.PickedPipe = 0;
  Nearest nearest(at);
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    if (nearest.IsNearer(PictureEnd(project, pipe))) project.PickedPipe = pipe;
  }
}

void LookupPipe(Project& project, Point at) {
  project.PickedPipe = 0;
  Nearest nearest(at);
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    if (nearest.IsNearer(PictureMiddle(project, pipe))) project.PickedPipe = pipe;
  }
}

void LookupHead(Project& project, Point at) {
  project.PickedPipe = 0;
  Nearest nearest(at);
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    const int head = project.PipeHead[pipe];
    if (head > 0 && nearest.IsNearer(PictureEnd(project, pipe))) project.PickedPipe = head;
  }
}

}  // namespace zeb
