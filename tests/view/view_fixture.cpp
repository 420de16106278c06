#include "view_fixture.h"

#include <algorithm>

#include "model/model_state.h"
#include "view/draw_view.h"

namespace zeb::test {

ViewTest::ViewTest() {
  project_.ViewMode = 1;
  project_.CommandMode = 7;
  project_.ModelState = model_state::kChecked;
  project_.WeldSize = 65;
  project_.ViewTitle = "Plan";
  project_.ZLimitOn = 1.0F;
  shell_.on_redraw = [this] { Draw(); };
}

void ViewTest::AddPipe(const PipeSketch& sketch) {
  const int pipe = ++project_.PipeCount;
  project_.PipeUpstream[pipe] = sketch.upstream;
  project_.PipeStartNode[pipe] = sketch.start_node;
  project_.PipeEndNode[pipe] = sketch.end_node;
  project_.PipeX[pipe] = sketch.x;
  project_.PipeY[pipe] = sketch.y;
  project_.PipeZ[pipe] = sketch.z;
  project_.PipeDirection[pipe] = sketch.direction;
  project_.PipeSize[pipe] = sketch.size;
  project_.PipeHead[pipe] = sketch.head;
  project_.HeadCount = std::max(int{project_.HeadCount}, sketch.head);
  project_.MaxX = std::max(project_.MaxX, sketch.x);
  project_.MaxY = std::max(project_.MaxY, sketch.y);
  project_.MaxZ = std::max(project_.MaxZ, sketch.z);
}

void ViewTest::AddCornerAndRiser() {
  AddPipe({.upstream = 0, .start_node = 1, .end_node = 2, .x = 54, .direction = 90, .size = 80});
  AddPipe({.upstream = 1, .start_node = 2, .end_node = 3, .x = 54, .y = 38});
  AddPipe({.upstream = 2,
           .start_node = 3,
           .end_node = 4,
           .x = 54,
           .y = 38,
           .z = 6,
           .direction = 999,
           .head = 1});
}

void ViewTest::Draw() { DrawView(session_, surface_); }

}  // namespace zeb::test
