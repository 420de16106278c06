#include "view/draw_view.h"

#include "model/model_state.h"
#include "view_fixture.h"

namespace zeb::test {
namespace {

using DrawViewTest = ViewTest;

TEST_F(DrawViewTest, DrawsEachPipeWithItsSymbolsInSlotOrder) {
  AddPipe({.end_node = 2, .x = 27, .direction = 90, .size = 65});
  AddPipe({.upstream = 1, .end_node = 3, .x = 54, .direction = 90, .size = 64});
  AddPipe({.upstream = 2, .end_node = 4, .x = 54, .y = 38, .head = 2});
  AddPipe({.upstream = 3, .end_node = 5, .x = 54, .y = 38, .z = 6, .direction = 999, .head = 1});
  AddPipe({.upstream = 3, .end_node = 6, .x = 44, .y = 38, .direction = 0});
  project_.PipeError[3] = 8;
  project_.PipeHydrant[2] = 500;
  Draw();
  EXPECT_EQ(surface_.calls, (Calls{
                                "line 50.0,430.0 320.0,430.0 c9 w2",
                                "line 320.0,430.0 590.0,430.0 c9 w1",
                                "circle 320.0,430.0 r1.0 c0 w1 f15",
                                "box 584.0,424.0 596.0,436.0 c0 w1 f15",
                                "text 587.0,424.0 H",
                                "line 590.0,430.0 590.0,50.0 c12 w1",
                                "circle 590.0,50.0 r4.0 c9 w1",
                                "line 590.0,50.0 590.0,50.0 c9 w1",
                                "circle 590.0,50.0 r2.0 c9 w1 f15",
                                "circle 590.0,50.0 r4.0 c9 w1",
                                // No joint: the pipe before ends in a head.
                                "line 590.0,50.0 490.0,50.0 c9 w1",
                            }));
}

TEST_F(DrawViewTest, TellsPlanHeadsByOutlineAndFill) {
  struct HeadCase {
    int selecting;
    int on;
    int remote;
    std::string circle;
  };
  AddCornerAndRiser();
  for (const HeadCase& expected : {HeadCase{0, 1, 0, "circle 590.0,50.0 r4.0 c9 w1"},
                                   {1, 0, 0, "circle 590.0,50.0 r4.0 c9 w1"},
                                   {1, 1, 0, "circle 590.0,50.0 r4.0 c9 w1 f9"},
                                   {0, 0, 1, "circle 590.0,50.0 r4.0 c9 w2"}}) {
    project_.SelectedHeadsMode = expected.selecting;
    project_.HeadOn[1] = expected.on;
    project_.MrHead3 = expected.remote;
    Draw();
    EXPECT_EQ(surface_.Calls("circle").back(), expected.circle);
  }
}

TEST_F(DrawViewTest, MarksTheRemotestOfSeveralHeadsAfterACalculation) {
  AddCornerAndRiser();
  project_.RemotestHead = 1;
  struct MarkCase {
    int state;
    int heads;
    int view;
    int marks;
  };
  for (const MarkCase& expected :
       {MarkCase{2, 2, 1, 0}, {3, 1, 1, 0}, {3, 2, 1, 1}, {3, 2, 2, 0}, {3, 2, 4, 1}}) {
    project_.ModelState = expected.state;
    project_.HeadCount = expected.heads;
    project_.ViewMode = expected.view;
    Draw();
    EXPECT_EQ(surface_.Calls("text").size(), expected.marks) << expected.view;
  }
  project_.ViewMode = 1;
  Draw();
  EXPECT_EQ(surface_.Calls("text"), (Calls{"text 595.0,34.0 MRH"}));
}

TEST_F(DrawViewTest, ElevationsCircleLevelPipesAlongTheLineOfSight) {
  struct SightCase {
    int view;
    float direction;
    float slope;
    int circles;
  };
  AddPipe({.end_node = 2, .x = 54, .y = 38});
  for (const SightCase& expected : {SightCase{2, 0, 0, 1},
                                    {2, 180, 0, 1},
                                    {2, 90, 0, 0},
                                    {2, 0, 1, 0},
                                    {3, 90, 0, 1},
                                    {3, 270, 0, 1},
                                    {3, 180, 0, 0}}) {
    project_.ViewMode = expected.view;
    project_.PipeDirection[1] = expected.direction;
    project_.PipeSlope[1] = expected.slope;
    Draw();
    EXPECT_EQ(surface_.Calls("circle").size(), expected.circles) << expected.direction;
  }
}

TEST_F(DrawViewTest, ElevationsDrawHeadsAsArrowsAndNoHydrants) {
  AddCornerAndRiser();
  project_.ViewMode = 2;
  project_.PipeHydrant[2] = 500;
  Draw();
  EXPECT_EQ(surface_.calls, (Calls{
                                "line 82.2,465.0 549.2,465.0 c9 w2",
                                "line 549.2,465.0 549.2,465.0 c9 w1",
                                "circle 549.2,465.0 r2.0 c9 w1",
                                "line 549.2,465.0 549.2,285.0 c9 w1",
                                "line 549.2,285.0 549.2,277.0 c1 w2",
                                "line 549.2,277.0 545.2,281.0 c1 w2",
                                "line 549.2,277.0 553.2,281.0 c1 w2",
                            }));
}

TEST_F(DrawViewTest, HeadsPointTheWayTheirPipeRuns) {
  struct HeadCase {
    int orient;
    float direction;
    float slope;
    std::string stem;
  };
  AddPipe({.end_node = 2, .x = 54, .y = 38, .head = 1});
  project_.ViewMode = 2;
  for (const HeadCase& expected : {HeadCase{1, 90, 0, "up"},
                                   {2, 90, 0, "down"},
                                   {1, -999, 0, "down"},
                                   {1, 90, -60.1F, "down"},
                                   {1, 90, -60, "up"},
                                   {2, 999, 0, "up"},
                                   {2, 90, 60.1F, "up"},
                                   {2, 999, -70, "up"}}) {
    project_.SprinklerOrient = expected.orient;
    project_.PipeDirection[1] = expected.direction;
    project_.PipeSlope[1] = expected.slope;
    Draw();
    const std::string tip = expected.stem == "up" ? "549.2,448.0" : "549.2,464.0";
    EXPECT_EQ(surface_.calls.at(1), "line 549.2,456.0 " + tip + " c1 w2") << expected.direction;
  }
}

TEST_F(DrawViewTest, HeadArrowsTellDutyPickAndRemoteness) {
  struct HeadCase {
    int view;
    float orifice;
    int selecting;
    int remote;
    std::string pen;
  };
  AddPipe({.end_node = 2, .x = 54, .y = 38, .direction = 90, .head = 1});
  for (const HeadCase& expected : {HeadCase{2, 15, 0, 0, "c1 w2"},
                                   {2, -15, 0, 0, "c12 w2"},
                                   {3, 15, 1, 0, "c1 w1"},
                                   {2, 15, 0, 1, "c1 w2"},
                                   {4, 15, 0, 1, "c13 w2"},
                                   {5, -15, 1, 0, "c12 w1"}}) {
    project_.ViewMode = expected.view;
    project_.HeadOrifice[1] = expected.orifice;
    project_.SelectedHeadsMode = expected.selecting;
    project_.MrHead1 = expected.remote;
    Draw();
    EXPECT_TRUE(surface_.calls.back().ends_with(expected.pen)) << surface_.calls.back();
  }
}

TEST_F(DrawViewTest, IsometricsNameHydrants) {
  AddCornerAndRiser();
  project_.ViewMode = 4;
  project_.PipeHydrant[1] = 1.0F;
  project_.PipeHydrant[2] = 1.1F;
  Draw();
  EXPECT_EQ(surface_.Calls("text"), (Calls{"text 217.6,69.2 HYD"}));
}

TEST_F(DrawViewTest, ADeletedPipeKeepsItsPlaceAndIsNotDrawn) {
  AddCornerAndRiser();
  Draw();
  project_.PipeError[1] = -1;
  project_.PipeX[1] = 0;
  project_.DisplayItem = 2;
  Draw();
  EXPECT_EQ(surface_.calls.front(), "line 50.0,430.0 590.0,50.0 c9 w1");
  EXPECT_EQ(project_.PipeScreenX2[1], 590);
  EXPECT_EQ(surface_.Calls("text").size(), 2);
}

TEST_F(DrawViewTest, TellsTheStatusBarWhatIsShown) {
  AddCornerAndRiser();
  project_.MinNode = 1;
  project_.MaxNode = 40;
  project_.ViewHint = "click";
  project_.PanLocked = 1;
  shell_.busy_pointer = true;
  surface_.geometry = {.left = 3, .top = 40, .width = 900, .height = 500};
  Draw();
  EXPECT_EQ(shell_.panels[Panel::kNodes], "1 : 40");
  EXPECT_EQ(shell_.tips[Panel::kNodes], "Min Node: 1 Max Node: 40");
  EXPECT_EQ(shell_.panels[Panel::kHint], "Plan - click");
  EXPECT_FALSE(shell_.busy_pointer);
  EXPECT_EQ(project_.PanLocked, 0);
  EXPECT_EQ(shell_.yields, 1);
  EXPECT_EQ(project_.PicWidth, 900);
  EXPECT_EQ(project_.PicTop, 40);
  EXPECT_TRUE(shell_.features.empty());
}

TEST_F(DrawViewTest, ShowsTheHeightsInForceOutsideThePlan) {
  project_.ViewTitle = "Front elevation";
  project_.ViewHint = "click";
  project_.ViewMode = 2;
  project_.ZoomState = 3;
  project_.MinZLimit = 1.5F;
  project_.MaxZLimit = 12;
  Draw();
  EXPECT_EQ(shell_.panels[Panel::kHint], "Front elevation - click");
  project_.ZLimitOn = 2;
  Draw();
  EXPECT_EQ(shell_.panels[Panel::kHint],
            "Front elevation showing pipes with midpoints between   1.5 and  12.0m");
  project_.ZoomState = 0;
  Draw();
  EXPECT_EQ(shell_.panels[Panel::kHint], "Front elevation - click");
}

TEST_F(DrawViewTest, PanArrowsBelongToAZoomedPlan) {
  for (const auto& [view, zoom_state, shown] : std::vector<std::tuple<int, int, bool>>{
           {1, 3, true}, {1, 0, false}, {2, 3, false}, {8, 1, false}}) {
    project_.ViewMode = view;
    project_.ZoomState = zoom_state;
    Draw();
    EXPECT_EQ(shell_.pan_arrows, shown) << view;
  }
}

TEST_F(DrawViewTest, ChangedDataTurnDisplayAndPrintOff) {
  project_.DataChanged = 1;
  project_.ModelState = model_state::kCalculated;
  Draw();
  EXPECT_TRUE(shell_.features.empty());
  project_.ModelState = model_state::kRead;
  Draw();
  EXPECT_EQ(shell_.features, (std::map<Feature, bool>{{Feature::kDisplayMenu, false},
                                                      {Feature::kPrintMenu, false}}));
}

TEST_F(DrawViewTest, ASettingShowsAtTheNextRedraw) {
  Draw();
  EXPECT_EQ(surface_.background.value, 16777215);
  EXPECT_EQ(surface_.text_style.font, "Arial");
  EXPECT_EQ(surface_.text_style.size, 8);
  EXPECT_EQ(surface_.text_style.colour.value, 12);
  session_.settings.SetIniValue("Display", "Background", "Gray");
  session_.settings.SetIniValue("Text", "FontName", "Courier New");
  session_.settings.SetIniValue("Text", "FontSize", "10.5");
  session_.settings.SetIniValue("Text", "FontBold", "True");
  session_.settings.SetIniValue("Text", "Colour", "255");
  Draw();
  EXPECT_EQ(surface_.background.value, 13619151);
  EXPECT_EQ(surface_.text_style.font, "Courier New");
  EXPECT_EQ(surface_.text_style.size, 10.5F);
  EXPECT_TRUE(surface_.text_style.bold);
  EXPECT_FALSE(surface_.text_style.italic);
  EXPECT_EQ(surface_.text_style.colour, PaletteColour(12));
}

TEST_F(DrawViewTest, PrintsTheMarkedNodeOnTop) {
  AddCornerAndRiser();
  project_.MarkedNode = 2;
  Draw();
  EXPECT_EQ(surface_.calls.back(), "text 592.0,430.0 2");
  project_.MarkedNode = -2;
  Draw();
  EXPECT_EQ(surface_.calls.back(), "text 592.0,50.0 3");
}

TEST_F(DrawViewTest, GoesOnPickingHeadsInACheckedModel) {
  for (const auto& [selecting, state, box_edge, mode] :
       std::vector<std::tuple<int, int, float, int>>{
           {1, 2, 0, 17}, {1, 2, 3.0F, 17}, {1, 2, 3.1F, 18}, {1, 1, 0, 7}, {0, 2, 0, 7}}) {
    project_.CommandMode = 7;
    project_.SelectedHeadsMode = selecting;
    project_.ModelState = state;
    project_.HeadBoxY2 = box_edge;
    Draw();
    EXPECT_EQ(project_.CommandMode, mode);
  }
}

class FailingRedrawTest : public DrawViewTest {
 protected:
  FailingRedrawTest() {
    AddCornerAndRiser();
    project_.PipeUpstream[2] = 6000;
    project_.DisplayItem = 2;
  }
};

TEST_F(FailingRedrawTest, IgnoreLeavesOutOnePipe) {
  outside_.dialogs.answers = {Answer::kIgnore};
  Draw();
  ASSERT_EQ(outside_.dialogs.messages.size(), 1);
  const Message& message = outside_.dialogs.messages.front();
  EXPECT_EQ(message.title, "Error in ZEB -  Draw View Module");
  EXPECT_EQ(message.text, "9 Subscript out of range\r\nin Module PipeDraw - Draw view at line 80");
  EXPECT_EQ(message.buttons, MessageButtons::kAbortRetryIgnore);
  EXPECT_EQ(surface_.calls.front(), "line 50.0,430.0 590.0,430.0 c9 w2");
  EXPECT_EQ(surface_.calls.at(1), "line 590.0,50.0 590.0,50.0 c9 w1");
  EXPECT_TRUE(outside_.files.Bytes("/prog/ZEB_error.log").find("Subscript") != std::string::npos);
}

TEST_F(FailingRedrawTest, AbortEndsAndRetryRepeats) {
  outside_.dialogs.answers = {Answer::kRetry, Answer::kAbort};
  Draw();
  EXPECT_EQ(outside_.dialogs.messages.size(), 2);
  EXPECT_EQ(surface_.calls.size(), 1);
}

}  // namespace
}  // namespace zeb::test
