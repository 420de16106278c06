#include "view/projection.h"

#include <cmath>

#include "view/view_bounds.h"
#include "view_fixture.h"

namespace zeb::test {
namespace {

using ProjectionTest = ViewTest;

struct ViewCase {
  int view;
  Point source;
  Point corner;  // (54, 0, 0)
  Point far;     // (54, 38, 0)
  Point top;     // (54, 38, 6)
};

TEST_F(ProjectionTest, MapsTheSamePointsInEachView) {
  AddCornerAndRiser();
  constexpr Point kPlanFar{590, 50};
  const std::vector<ViewCase> cases{
      {1, {50, 430}, {590, 430}, kPlanFar, kPlanFar},
      {2, {82.162F, 465}, {549.189F, 465}, {549.189F, 465}, {549.189F, 285}},
      {3, {524.138F, 465}, {524.138F, 465}, {104.828F, 465}, {104.828F, 285}},
      {4, {56.372F, 441.290F}, {583.628F, 232.258F}, {212.596F, 85.161F}, {212.596F, 38.710F}},
      {5, {35.685F, 64.865F}, {369.446F, 415.135F}, {604.315F, 168.649F}, {604.315F, 90.811F}},
      {6, {604.315F, 415.135F}, {270.554F, 64.865F}, {35.685F, 311.351F}, {35.685F, 233.514F}},
      {7, {583.628F, 42.857F}, {56.372F, 274.286F}, {427.404F, 437.143F}, {427.404F, 385.714F}},
      {8, {50, 430}, {590, 430}, kPlanFar, kPlanFar},
  };
  for (const ViewCase& expected : cases) {
    SCOPED_TRACE(expected.view);
    project_.ViewMode = expected.view;
    Draw();
    const auto expect_at = [&](Point point, float x, float y) {
      EXPECT_NEAR(x, point.x, 0.01);
      EXPECT_NEAR(y, point.y, 0.01);
    };
    expect_at(expected.source, project_.PipeScreenX1[1], project_.PipeScreenY1[1]);
    expect_at(expected.corner, project_.PipeScreenX2[1], project_.PipeScreenY2[1]);
    expect_at(expected.corner, project_.PipeScreenX1[2], project_.PipeScreenY1[2]);
    expect_at(expected.far, project_.PipeScreenX2[2], project_.PipeScreenY2[2]);
    expect_at(expected.top, project_.PipeScreenX2[3], project_.PipeScreenY2[3]);
  }
}

TEST_F(ProjectionTest, WidthAloneDecidesTheMargin) {
  struct MarginCase {
    float max_x;
    float max_y;
    float margin;
  };
  for (const MarginCase& expected : {MarginCase{100.0F, 50, 10},
                                     {100.1F, 50, 18},
                                     {400.0F, 50, 18},
                                     {400.1F, 50, 20},
                                     {50, 900, 10}}) {
    project_.MaxX = expected.max_x;
    project_.MaxY = expected.max_y;
    const ViewBounds bounds = WorkingBounds(project_);
    EXPECT_EQ(bounds.margin, expected.margin) << expected.max_x;
    EXPECT_EQ(bounds.x_high, expected.max_x + expected.margin);
    EXPECT_EQ(bounds.y_low, -expected.margin);
  }
}

TEST_F(ProjectionTest, ALevelPipeLeavesTheMarginToTheElevation) {
  AddPipe({.end_node = 2, .x = 20, .direction = 90});
  project_.ViewMode = 2;
  Draw();
  // Half a metre above the lower edge of 10 m.
  EXPECT_FLOAT_EQ(project_.PipeScreenY2[1], 480 - 0.5F * 48);
}

class ZoomedProjectionTest : public ProjectionTest {
 protected:
  ZoomedProjectionTest() {
    AddCornerAndRiser();
    project_.ZoomState = 3;
    project_.ZoomX1 = 40;
    project_.ZoomX2 = 55;
    project_.ZoomY1 = 10;
    project_.ZoomY2 = 39;
    project_.ZoomZ1 = 0;
    project_.ZoomZ2 = 3;
    project_.PipeSelected[2] = 1;
  }
};

TEST_F(ZoomedProjectionTest, FramesTheBoxWithHalfAMetreAround) {
  Draw();
  // 16 m across and 30 m up fill the picture.
  EXPECT_FLOAT_EQ(project_.PipeScreenX2[2], (54 - 39.5F) * 40);
  EXPECT_FLOAT_EQ(project_.PipeScreenY2[2], 480 - (38 - 9.5F) * 16);
  EXPECT_FLOAT_EQ(project_.ViewMargin, 1);
  const Point back =
      FromPlanPicture(project_, {project_.PipeScreenX2[2], project_.PipeScreenY2[2]});
  EXPECT_NEAR(back.x, 54, 1e-4);
  EXPECT_NEAR(back.y, 38, 1e-4);
}

TEST_F(ZoomedProjectionTest, AnElevationSpansTheBoxAndItsHeights) {
  project_.ViewMode = 2;
  Draw();
  EXPECT_NEAR(project_.PipeScreenX2[2], (54 - 39 - 0.5) * 640 / 17, 0.01);
  EXPECT_NEAR(project_.PipeScreenY2[3], 480 - 6.5 * 120, 0.01);
}

TEST_F(ZoomedProjectionTest, AnIsometricIsFramedOnTheSelection) {
  project_.ViewMode = 4;
  Draw();
  // The selected pipe runs from the right edge, a metre in, to the left edge.
  const double width = 38 * std::sqrt(0.75) + 2;
  EXPECT_NEAR(project_.PipeScreenX1[2], 640 - 640 / width, 0.01);
  EXPECT_NEAR(project_.PipeScreenX2[2], 640 / width, 0.01);
  EXPECT_NEAR(project_.PipeScreenY1[2], 480 - 480 / 21.0, 0.01);
  EXPECT_NEAR(project_.PipeScreenY2[2], 480 / 21.0, 0.01);
}

TEST_F(ZoomedProjectionTest, OnlyAPlanWritesTheMapping) {
  Draw();
  const float scale = project_.ViewScaleX;
  project_.ViewMode = 2;
  project_.ZoomState = 0;
  Draw();
  EXPECT_EQ(project_.ViewScaleX, scale);
}

struct FilterCase {
  int view;
  int zoom_state;
  float limit;
  int lines;
};

TEST_F(ZoomedProjectionTest, HeightLimitsHidePipesOutsideTheSelection) {
  // Without a head the number of lines is that of the pipes.
  project_.PipeHead[3] = 0;
  for (const FilterCase& expected : {FilterCase{1, 3, 2, 3},
                                     {2, 3, 2, 1},
                                     {2, 3, 1, 3},
                                     {2, 0, 2, 3},
                                     {4, 3, 2, 1},
                                     {4, 3, 1, 3},
                                     {4, 0, 2, 3},
                                     {4, 1, 1, 0},
                                     {4, 2, 1, 0},
                                     {2, 1, 1, 3}}) {
    project_.ViewMode = expected.view;
    project_.ZoomState = expected.zoom_state;
    project_.ZLimitOn = expected.limit;
    Draw();
    EXPECT_EQ(surface_.Calls("line").size(), expected.lines)
        << "view " << expected.view << " zoom " << expected.zoom_state << " limit "
        << expected.limit;
  }
}

}  // namespace
}  // namespace zeb::test
