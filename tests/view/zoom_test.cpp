#include "view/zoom.h"

#include "view/pan.h"
#include "view/pointer_machine.h"
#include "view/view_commands.h"
#include "view_fixture.h"

namespace zeb::test {
namespace {

// The corner and the riser on a plan of 10 units a metre: middles at (320, 430), (590, 240) and
// (590, 50), their heights 0, 0 and 3 m.
class ZoomTest : public ViewTest {
 protected:
  ZoomTest() {
    AddCornerAndRiser();
    Draw();
  }

  void DragBox(Point from, Point to) {
    pointer_.pic1_MouseDown(MouseButton::kLeft, from);
    pointer_.pic1_MouseMove(to);
    pointer_.pic1_MouseUp(MouseButton::kLeft, to);
  }
  void SetBox(const Box& box) {
    project_.ZoomState = 3;
    StoreZoomBox(project_, box);
  }
  void ExpectBox(const Box& expected) {
    EXPECT_NEAR(project_.ZoomX1, expected.low.x, 1e-4);
    EXPECT_NEAR(project_.ZoomY1, expected.low.y, 1e-4);
    EXPECT_NEAR(project_.ZoomX2, expected.high.x, 1e-4);
    EXPECT_NEAR(project_.ZoomY2, expected.high.y, 1e-4);
  }
  [[nodiscard]] std::vector<int> Selected() const {
    std::vector<int> pipes;
    for (int pipe = 1; pipe <= project_.PipeCount; ++pipe) {
      if (project_.PipeSelected[pipe] == 1) pipes.push_back(pipe);
    }
    return pipes;
  }
  [[nodiscard]] Point WorldAt(Point picture) const {
    return {picture.x / project_.ViewScaleX + project_.ViewOriginX,
            (480 - picture.y) / project_.ViewScaleY + project_.ViewOriginY};
  }

  PointerMachine pointer_{session_, surface_};
};

struct BoxCase {
  Point from;
  Point to;
  float limit;  // above 0: heights from 1 m up to here
  std::vector<int> selected;
  float low;
  float high;
};

TEST_F(ZoomTest, ABoxTakesThePipesWhoseMiddlesLieInIt) {
  for (const BoxCase& expected : std::vector<BoxCase>{{{300, 400}, {340, 450}, 0, {1}, -0.5F, 0.5F},
                                                      {{340, 450}, {300, 400}, 0, {1}, -0.5F, 0.5F},
                                                      {{580, 300}, {600, 20}, 0, {2, 3}, 0, 3},
                                                      {{580, 300}, {600, 20}, 5, {3}, 1, 5}}) {
    Zinall(session_);
    project_.ZLimitOn = expected.limit > 0 ? 2.0F : 1.0F;
    project_.MinZLimit = 1;
    project_.MaxZLimit = expected.limit;
    DragBox(expected.from, expected.to);
    EXPECT_EQ(Selected(), expected.selected);
    EXPECT_EQ(project_.ZoomState, 3);
    EXPECT_EQ(project_.ZoomKept, 1);
    EXPECT_EQ(project_.ViewMode, 1);
    EXPECT_EQ(project_.ZoomZ1, expected.low);
    EXPECT_EQ(project_.ZoomZ2, expected.high);
    EXPECT_EQ(shell_.panels[Panel::kHint],
              "Zoomed in plan - click mouse near centre of a pipe to review its information");
  }
  Zinall(session_);
  DragBox({300, 450}, {340, 400});
  ExpectBox({{25, -2}, {29, 3}});
}

TEST_F(ZoomTest, AnEmptyBoxAsksForAnother) {
  Zinall(session_);
  outside_.dialogs.answers = {Answer::kYes, Answer::kNo};
  DragBox({590, 300}, {600, 20});  // the middles lie on its edge
  ASSERT_EQ(outside_.dialogs.messages.size(), 1);
  EXPECT_EQ(outside_.dialogs.messages[0].title, "Zoom Command");
  EXPECT_EQ(outside_.dialogs.messages[0].text,
            "You have not selected any pipes do you wish to try again?");
  EXPECT_EQ(project_.CommandMode, 9);
  EXPECT_EQ(project_.ZoomState, 1);
  DragBox({100, 100}, {200, 200});
  EXPECT_EQ(project_.CommandMode, 7);
  EXPECT_EQ(project_.ZoomState, 0);
}

TEST_F(ZoomTest, TheBoxFollowsThePointerAndUndoesItself) {
  Zinall(session_);
  pointer_.pic1_MouseMove({50, 50});
  pointer_.pic1_MouseDown(MouseButton::kLeft, {100, 100});
  EXPECT_EQ(shell_.panels[Panel::kHint],
            "Zoom in on current plan - still holding mouse button down, move to include centres "
            "of pipes and release button");
  pointer_.pic1_MouseMove({150, 160});
  pointer_.pic1_MouseMove({90, 80});
  EXPECT_EQ(surface_.Calls("invert"),
            (Calls{"invert 100.0,100.0 100.0,100.0 c4 w1", "invert 100.0,100.0 100.0,100.0 c4 w1",
                   "invert 100.0,100.0 150.0,160.0 c4 w1", "invert 100.0,100.0 150.0,160.0 c4 w1",
                   "invert 100.0,100.0 90.0,80.0 c4 w1"}));
  // The right button leaves the box pending, but not on the picture.
  pointer_.pic1_MouseDown(MouseButton::kRight, {90, 80});
  pointer_.pic1_MouseMove({10, 10});
  EXPECT_EQ(project_.ZoomState, 2);
  EXPECT_EQ(project_.CommandMode, 7);
  EXPECT_EQ(surface_.Count("invert 100.0,100.0 90.0,80.0 c4 w1"), 2);
  EXPECT_EQ(surface_.Calls("invert").size(), 6);
}

TEST_F(ZoomTest, AnArrowMovesByAWholeBoxUpToTheNetworksEdge) {
  const Box middle{{20, 15}, {30, 20}};
  for (const auto& [arrow, from, to] :
       std::vector<std::tuple<int, Box, Box>>{{0, middle, {{20, 20}, {30, 25}}},
                                              {1, middle, {{30, 20}, {40, 25}}},
                                              {2, middle, {{30, 15}, {40, 20}}},
                                              {3, middle, {{30, 10}, {40, 15}}},
                                              {4, middle, {{20, 10}, {30, 15}}},
                                              {5, middle, {{10, 10}, {20, 15}}},
                                              {6, middle, {{10, 15}, {20, 20}}},
                                              {7, middle, {{10, 20}, {20, 25}}},
                                              {1, {{40, 30}, {50, 36}}, {{44, 32}, {54, 38}}},
                                              {5, {{4, 3}, {14, 9}}, {{0, 0}, {10, 6}}}}) {
    SetBox(from);
    pan_Click(session_, arrow);
    ExpectBox(to);
  }
}

TEST_F(ZoomTest, PanningSelectsAnewOrSaysThatNothingIsThere) {
  SetBox({{50, 20}, {58, 30}});
  shell_.redraws = 0;
  pan_Click(session_, 4);
  EXPECT_EQ(Selected(), (std::vector<int>{2}));
  EXPECT_EQ(project_.ZoomZ1, -0.5F);
  EXPECT_EQ(shell_.redraws, 1);
  SetBox({{50, 20}, {58, 30}});
  pan_Click(session_, 0);  // the riser's middle lies on the edge of the network and of the box
  EXPECT_TRUE(Selected().empty());
  EXPECT_EQ(shell_.panels[Panel::kHint], "No centres of any pipes found in new pan position");
  EXPECT_EQ(shell_.redraws, 1);
  ExpectBox({{50, 28}, {58, 38}});
  project_.PanLocked = 1;
  pan_Click(session_, 4);
  ExpectBox({{50, 28}, {58, 38}});
}

TEST_F(ZoomTest, TheWheelZoomsAboutThePointerWithinBounds) {
  const Point pointer{160, 360};
  const Point before = WorldAt(pointer);
  pointer_.pic1_MouseWheel(pointer, 1);
  EXPECT_NEAR(WorldAt(pointer).x, before.x, 1e-3);
  EXPECT_NEAR(WorldAt(pointer).y, before.y, 1e-3);
  EXPECT_NEAR(project_.ViewScaleX, 12.5, 1e-3);
  EXPECT_EQ(project_.ZoomState, 3);
  EXPECT_EQ(Selected(), (std::vector<int>{1}));
  for (int turn = 0; turn < 40; ++turn) pointer_.pic1_MouseWheel({320, 240}, 3);
  EXPECT_NEAR(480 / project_.ViewScaleY, 2, 1e-3);
  for (int turn = 0; turn < 40; ++turn) pointer_.pic1_MouseWheel({320, 240}, -3);
  EXPECT_EQ(project_.ZoomState, 0);
  EXPECT_EQ(project_.ViewScaleX, 10);
}

TEST_F(ZoomTest, TheMiddleButtonDragsAZoomedPlanAndFitsAll) {
  pointer_.pic1_MouseWheel({320, 240}, 4);
  const Point grabbed = WorldAt({300, 300});
  pointer_.pic1_MouseDown(MouseButton::kMiddle, {300, 300});
  pointer_.pic1_MouseMove({340, 320});
  pointer_.pic1_MouseMove({350, 270});
  pointer_.pic1_MouseUp(MouseButton::kMiddle, {350, 270});
  pointer_.pic1_MouseMove({10, 10});
  EXPECT_NEAR(WorldAt({350, 270}).x, grabbed.x, 1e-3);
  EXPECT_NEAR(WorldAt({350, 270}).y, grabbed.y, 1e-3);
  pointer_.pic1_DblClick(MouseButton::kMiddle);
  EXPECT_EQ(project_.ZoomState, 0);
}

TEST_F(ZoomTest, TheWheelKeepsOffAwaitedBoxesOtherViewsAndEmptyIsometrics) {
  Zinall(session_);
  pointer_.pic1_MouseWheel({320, 240}, 2);
  pointer_.pic1_DblClick(MouseButton::kMiddle);
  EXPECT_EQ(project_.ZoomState, 1);
  Vpzout(session_);
  Vfront(session_);
  pointer_.pic1_MouseWheel({320, 240}, 2);
  EXPECT_EQ(project_.ZoomState, 0);
  Vpzout(session_);
  pointer_.pic1_MouseWheel({0, 0}, 8);
  EXPECT_EQ(project_.ZoomState, 3);
  EXPECT_TRUE(Selected().empty());
  Visolbl(session_);
  EXPECT_EQ(project_.ZoomState, 0);
}

}  // namespace
}  // namespace zeb::test
