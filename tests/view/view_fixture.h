#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "support/recording_surface.h"
#include "support/test_session.h"
#include "view/draw_view.h"
#include "view/view_modes.h"

namespace zeb::test {

using Calls = std::vector<std::string>;

// A session with a picture and a network set by hand. A redraw of the shell draws on the surface.
class ViewTest : public ::testing::Test {
 protected:
  ViewTest() {
    project_.ViewMode = 1;
    project_.CommandMode = 7;
    project_.ModelState = model_state::kChecked;
    project_.WeldSize = 65;
    project_.ViewTitle = "Plan";
    shell_.on_redraw = [this] { Draw(); };
  }

  void Draw() { DrawView(session_, surface_); }

  // Adds the next pipe, behind `upstream`, to a point; nodes are one above the slots.
  void AddPipe(int upstream, float x, float y, float z, float direction, int head = 0) {
    const int pipe = ++project_.PipeCount;
    project_.PipeUpstream[pipe] = upstream;
    project_.PipeStartNode[pipe] = upstream + 1;
    project_.PipeEndNode[pipe] = pipe + 1;
    project_.PipeX[pipe] = x;
    project_.PipeY[pipe] = y;
    project_.PipeZ[pipe] = z;
    project_.PipeDirection[pipe] = direction;
    project_.PipeSize[pipe] = 50;
    project_.PipeHead[pipe] = head;
    project_.HeadPipe[head] = static_cast<float>(pipe);
    project_.HeadCount = std::max(int{project_.HeadCount}, head);
    project_.MaxX = std::max(project_.MaxX, x);
    project_.MaxY = std::max(project_.MaxY, y);
    project_.MaxZ = std::max(project_.MaxZ, z);
  }
  // A source at (0, 0, 0), then to (54, 0, 0), (54, 38, 0) and up to a head at (54, 38, 6). On the
  // plan a metre is 10 units both ways, and the source lies at (50, 430).
  void AddCornerAndRiser() {
    AddPipe(0, 54, 0, 0, 90);
    AddPipe(1, 54, 38, 0, 0);
    AddPipe(2, 54, 38, 6, 999, 1);
  }

  TestSession outside_;
  Session& session_ = outside_.session;
  Project& project_ = outside_.session.project;
  RecordingShell& shell_ = outside_.shell;
  RecordingSurface surface_;
};

}  // namespace zeb::test
