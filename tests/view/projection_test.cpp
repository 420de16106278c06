#include "view/projection.h"

#include <cmath>

#include "view/view_bounds.h"
#include "view_fixture.h"

namespace zeb::test {
namespace {

class ProjectionTest : public ViewTest {
 protected:
  ProjectionTest() { AddCornerAndRiser(); }

  void ExpectAt(Point expected, float x, float y) {
    EXPECT_NEAR(x, expected.x, 0.01);
    EXPECT_NEAR(y, expected.y, 0.01);
  }
};

struct ViewCase {
  int view;
  Point source;
  Point corner;  // (54, 0, 0)
  Point far;     // (54, 38, 0)
  Point top;     // (54, 38, 6)
};

TEST_F(ProjectionTest, MapsTheSamePointsInEachView) {
  for (const ViewCase& expected : std::vector<ViewCase>{
           {1, {50, 430}, {590, 430}, {590, 50}, {590, 50}},
           {2, {82.162F, 465}, {549.189F, 465}, {549.189F, 465}, {549.189F, 285}},
           {3, {524.138F, 465}, {524.138F, 465}, {104.828F, 465}, {104.828F, 285}},
           {4, {56.372F, 441.29F}, {583.628F, 232.258F}, {212.596F, 85.161F}, {212.596F, 38.71F}},
           {5, {35.685F, 64.865F}, {369.446F, 415.135F}, {604.315F, 168.649F}, {604.315F, 90.811F}},
           {6, {604.315F, 415.135F}, {270.554F, 64.865F}, {35.685F, 311.351F}, {35.685F, 233.514F}},
           {7,
            {583.628F, 42.857F},
            {56.372F, 274.286F},
            {427.404F, 437.143F},
            {427.404F, 385.714F}},
           {8, {50, 430}, {590, 430}, {590, 50}, {590, 50}}}) {
    SCOPED_TRACE(expected.view);
    project_.ViewMode = expected.view;
    Draw();
    ExpectAt(expected.source, project_.PipeScreenX1[1], project_.PipeScreenY1[1]);
    ExpectAt(expected.corner, project_.PipeScreenX2[1], project_.PipeScreenY2[1]);
    ExpectAt(expected.far, project_.PipeScreenX1[3], project_.PipeScreenY1[3]);
    ExpectAt(expected.top, project_.PipeScreenX2[3], project_.PipeScreenY2[3]);
  }
}

TEST_F(ProjectionTest, WidthAloneDecidesTheMargin) {
  for (const auto& [max_x, max_y, margin] : std::vector<std::tuple<float, float, float>>{
           {100, 50, 10}, {100.1F, 50, 18}, {400, 50, 18}, {400.1F, 50, 20}, {50, 900, 10}}) {
    project_.MaxX = max_x;
    project_.MaxY = max_y;
    const ViewBounds bounds = WorkingBounds(project_);
    EXPECT_EQ(bounds.margin, margin);
    EXPECT_EQ(bounds.x_high, max_x + margin);
    EXPECT_EQ(bounds.y_low, -margin);
  }
}

class ZoomedProjectionTest : public ProjectionTest {
 protected:
  ZoomedProjectionTest() {
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

TEST_F(ZoomedProjectionTest, APlanShowsTheBoxWithHalfAMetreAroundAndCanBeTurnedRound) {
  Draw();
  const Point end{project_.PipeScreenX2[2], project_.PipeScreenY2[2]};
  ExpectAt({(54 - 39.5F) * 40, 480 - (38 - 9.5F) * 16}, end.x, end.y);
  // Other views leave the plan's mapping as it is.
  project_.ViewMode = 2;
  project_.ZoomState = 0;
  Draw();
  ExpectAt({54, 38}, FromPlanPicture(project_, end).x, FromPlanPicture(project_, end).y);
}

TEST_F(ZoomedProjectionTest, AnElevationSpansTheBoxAndItsHeights) {
  project_.ViewMode = 2;
  Draw();
  ExpectAt({(54 - 39.5F) * 640 / 17, 480 - 6.5F * 120}, project_.PipeScreenX2[3],
           project_.PipeScreenY2[3]);
}

TEST_F(ZoomedProjectionTest, AnIsometricIsFramedOnTheSelection) {
  project_.ViewMode = 4;
  Draw();
  // A metre around: the pipe runs 38 cos 30 m to the left and 38 sin 30 m up.
  const auto edge_x = static_cast<float>(640 / (38 * std::sqrt(0.75) + 2));
  ExpectAt({640 - edge_x, 480 - 480 / 21.0F}, project_.PipeScreenX1[2], project_.PipeScreenY1[2]);
  ExpectAt({edge_x, 480 / 21.0F}, project_.PipeScreenX2[2], project_.PipeScreenY2[2]);
}

TEST_F(ZoomedProjectionTest, HeightLimitsHidePipesOutsideTheSelection) {
  project_.PipeHead[3] = 0;  // a head has lines of its own
  for (const auto& [view, zoom_state, limit, lines] :
       std::vector<std::tuple<int, int, float, int>>{{1, 3, 2, 3},
                                                     {2, 3, 2, 1},
                                                     {2, 3, 1, 3},
                                                     {2, 0, 2, 3},
                                                     {2, 1, 1, 3},
                                                     {4, 3, 2, 1},
                                                     {4, 3, 1, 3},
                                                     {4, 0, 2, 3},
                                                     {4, 1, 1, 0},
                                                     {4, 2, 1, 0}}) {
    project_.ViewMode = view;
    project_.ZoomState = zoom_state;
    project_.ZLimitOn = limit;
    Draw();
    EXPECT_EQ(surface_.Calls("line").size(), lines) << view << zoom_state << limit;
  }
}

}  // namespace
}  // namespace zeb::test
