#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/recording_surface.h"
#include "support/test_session.h"

namespace zeb::test {

// The end of a pipe and how it gets there.
struct PipeSketch {
  int upstream = 0;
  int start_node = 0;
  int end_node = 0;
  float x = 0.0F;
  float y = 0.0F;
  float z = 0.0F;
  float direction = 0.0F;
  int size = 50;
  int head = 0;
};

// A session with a picture and a network set by hand. A redraw of the shell draws on the surface.
class ViewTest : public ::testing::Test {
 protected:
  ViewTest();

  void AddPipe(const PipeSketch& sketch);
  // A source at (0, 0, 0), then to (54, 0, 0), (54, 38, 0) and up to (54, 38, 6). On the plan a
  // metre is 10 units both ways, and the source lies at (50, 430).
  void AddCornerAndRiser();
  void Draw();

  TestSession outside_;
  Session& session_ = outside_.session;
  Project& project_ = outside_.session.project;
  RecordingShell& shell_ = outside_.shell;
  RecordingSurface surface_;
};

using Calls = std::vector<std::string>;

}  // namespace zeb::test
