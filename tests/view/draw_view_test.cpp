#include "view/draw_view.h"

#include "view_fixture.h"

namespace zeb::test {
namespace {

using DrawViewTest = ViewTest;

TEST_F(DrawViewTest, DrawsEachPipeWithItsSymbolsInSlotOrder) {
  AddPipe(0, 27, 0, 0, 90);
  AddPipe(1, 54, 0, 0, 90);
  AddPipe(2, 54, 38, 0, 0, 2);
  AddPipe(3, 54, 38, 6, 999, 1);
  AddPipe(3, 44, 38, 0, 0);  // no joint: the pipe before ends in a head
  project_.PipeSize[1] = 65;
  project_.PipeSize[2] = 64;
  project_.PipeError[3] = 8;
  project_.PipeHydrant[2] = 500;
  Draw();
  EXPECT_EQ(surface_.calls,
            (Calls{"line 50.0,430.0 320.0,430.0 c9 w2", "line 320.0,430.0 590.0,430.0 c9 w1",
                   "circle 320.0,430.0 r1.0 c0 w1 f15", "box 584.0,424.0 596.0,436.0 c0 w1 f15",
                   "text 587.0,424.0 H", "line 590.0,430.0 590.0,50.0 c12 w1",
                   "circle 590.0,50.0 r4.0 c9 w1", "line 590.0,50.0 590.0,50.0 c9 w1",
                   "circle 590.0,50.0 r2.0 c9 w1 f15", "circle 590.0,50.0 r4.0 c9 w1",
                   "line 590.0,50.0 490.0,50.0 c9 w1"}));
}

TEST_F(DrawViewTest, ElevationsDrawHeadsAsArrowsAndCircleWhatRunsIntoThePicture) {
  AddCornerAndRiser();
  project_.ViewMode = 2;
  project_.PipeHydrant[2] = 500;
  Draw();
  EXPECT_EQ(surface_.calls,
            (Calls{"line 82.2,465.0 549.2,465.0 c9 w1", "line 549.2,465.0 549.2,465.0 c9 w1",
                   "circle 549.2,465.0 r2.0 c9 w1", "line 549.2,465.0 549.2,285.0 c9 w1",
                   "line 549.2,285.0 549.2,277.0 c1 w2", "line 549.2,277.0 545.2,281.0 c1 w2",
                   "line 549.2,277.0 553.2,281.0 c1 w2"}));
  for (const auto& [view, direction, slope, circles] :
       std::vector<std::tuple<int, float, float, int>>{
           {2, 180, 0, 1}, {2, 90, 0, 0}, {2, 0, 1, 0}, {3, 270, 0, 2}, {3, 180, 0, 1}}) {
    project_.ViewMode = view;
    project_.PipeDirection[2] = direction;
    project_.PipeSlope[2] = slope;
    Draw();
    EXPECT_EQ(surface_.Calls("circle").size(), circles) << view << " " << direction;
  }
}

struct HeadCase {
  int view;
  int on;  // -1 while heads are not picked
  float orifice;
  int remote;
  std::string look;
};

TEST_F(DrawViewTest, HeadsTellPickDutyAndRemoteness) {
  AddPipe(0, 54, 38, 0, 0, 1);
  for (const HeadCase& expected : std::vector<HeadCase>{{1, -1, 15, 0, "r4.0 c9 w1"},
                                                        {1, 0, -15, 0, "r4.0 c9 w1"},
                                                        {1, 1, 15, 0, "r4.0 c9 w1 f9"},
                                                        {1, -1, 15, 1, "r4.0 c9 w2"},
                                                        {2, -1, -15, 0, "c12 w2"},
                                                        {3, 0, 15, 0, "c1 w1"},
                                                        {3, 1, 15, 0, "c1 w2"},
                                                        {2, -1, 15, 1, "c1 w2"},
                                                        {4, -1, 15, 1, "c13 w2"},
                                                        {5, 0, -15, 0, "c12 w1"}}) {
    project_.ViewMode = expected.view;
    project_.SelectedHeadsMode = expected.on >= 0 ? 1 : 0;
    project_.HeadOn[1] = expected.on == 1 ? 1 : 0;
    project_.HeadOrifice[1] = expected.orifice;
    project_.MrHead3 = expected.remote;
    Draw();
    EXPECT_TRUE(surface_.calls.back().ends_with(expected.look)) << surface_.calls.back();
  }
}

TEST_F(DrawViewTest, HeadsPointTheWayTheirPipeRuns) {
  AddPipe(0, 54, 38, 0, 90, 1);
  project_.ViewMode = 2;
  for (const auto& [orient, direction, slope, up] :
       std::vector<std::tuple<int, float, float, bool>>{{1, 90, 0, true},
                                                        {2, 90, 0, false},
                                                        {1, -999, 0, false},
                                                        {1, 90, -60.1F, false},
                                                        {1, 90, -60, true},
                                                        {2, 90, 60.1F, true},
                                                        {2, 999, -70, true}}) {
    project_.SprinklerOrient = orient;
    project_.PipeDirection[1] = direction;
    project_.PipeSlope[1] = slope;
    Draw();
    const std::string tip = up ? "549.2,448.0" : "549.2,464.0";
    EXPECT_EQ(surface_.calls.at(1), "line 549.2,456.0 " + tip + " c1 w2") << direction;
  }
}

TEST_F(DrawViewTest, NamesHydrantsAndTheRemotestOfSeveralHeads) {
  AddCornerAndRiser();
  project_.RemotestHead = 1;
  project_.PipeHydrant[1] = 1.0F;
  project_.PipeHydrant[2] = 1.1F;
  for (const auto& [state, heads, view, texts] : std::vector<std::tuple<int, int, int, Calls>>{
           {2, 2, 4, {"text 217.6,69.2 HYD"}},
           {3, 1, 4, {"text 217.6,69.2 HYD"}},
           {3, 2, 4, {"text 217.6,69.2 HYD", "text 217.6,22.7 MRH"}},
           {3, 2, 1, {"text 587.0,44.0 H", "text 595.0,34.0 MRH"}},
           {3, 2, 2, {}}}) {
    project_.ModelState = state;
    project_.HeadCount = heads;
    project_.ViewMode = view;
    Draw();
    EXPECT_EQ(surface_.Calls("text"), texts);
  }
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
  project_.MinNode = 1;
  project_.MaxNode = 40;
  project_.ViewHint = "click";
  project_.PanLocked = 1;
  shell_.busy_pointer = true;
  surface_.geometry.width = 900;
  Draw();
  EXPECT_EQ(shell_.panels[Panel::kNodes], "1 : 40");
  EXPECT_EQ(shell_.tips[Panel::kNodes], "Min Node: 1 Max Node: 40");
  EXPECT_EQ(shell_.panels[Panel::kHint], "Plan - click");
  EXPECT_FALSE(shell_.busy_pointer);
  EXPECT_EQ(project_.PanLocked, 0);
  EXPECT_EQ(shell_.yields, 1);
  EXPECT_EQ(project_.PicWidth, 900);
}

TEST_F(DrawViewTest, AZoomShowsPanArrowsOrItsHeights) {
  project_.ViewHint = "click";
  project_.MinZLimit = 1.5F;
  project_.MaxZLimit = 12;
  const std::string heights = "Plan showing pipes with midpoints between   1.5 and  12.0m";
  for (const auto& [view, zoom_state, limit, arrows, hint] :
       std::vector<std::tuple<int, int, float, bool, std::string>>{
           {1, 3, 2, true, "Plan - click"},
           {1, 0, 1, false, "Plan - click"},
           {8, 1, 2, false, "Plan - click"},
           {2, 3, 1, false, "Plan - click"},
           {2, 3, 2, false, heights},
           {2, 0, 2, false, "Plan - click"}}) {
    project_.ViewMode = view;
    project_.ZoomState = zoom_state;
    project_.ZLimitOn = limit;
    Draw();
    EXPECT_EQ(shell_.pan_arrows, arrows) << view;
    EXPECT_EQ(shell_.panels[Panel::kHint], hint);
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
  const TextStyle plain{.font = "Arial", .size = 8, .colour = {12}};
  Draw();
  EXPECT_EQ(surface_.background.value, 16777215);
  EXPECT_EQ(surface_.text_style, plain);
  session_.settings.SetIniValue("Display", "Background", "Gray");
  session_.settings.SetIniValue("Text", "FontSize", "10.5");
  session_.settings.SetIniValue("Text", "FontBold", "True");
  session_.settings.SetIniValue("Text", "Colour", "255");
  Draw();
  EXPECT_EQ(surface_.background.value, 13619151);
  EXPECT_EQ(surface_.text_style,
            (TextStyle{.font = "Arial", .size = 10.5F, .bold = true, .colour = PaletteColour(12)}));
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
  for (const auto& [picking, state, box_edge, mode] : std::vector<std::tuple<int, int, float, int>>{
           {1, 2, 3.0F, 17}, {1, 2, 3.1F, 18}, {1, 1, 0, 7}, {0, 2, 0, 7}}) {
    project_.CommandMode = 7;
    project_.SelectedHeadsMode = picking;
    project_.ModelState = state;
    project_.HeadBoxY2 = box_edge;
    shell_.panels.clear();
    Draw();
    EXPECT_EQ(project_.CommandMode, mode);
    EXPECT_EQ(shell_.panels[Panel::kMode], mode == 7 ? "" : "OPERATING HEADS");
  }
}

TEST_F(DrawViewTest, AFailureLeavesOutOnePipeOrEndsTheRedraw) {
  AddCornerAndRiser();
  project_.PipeUpstream[2] = 6000;
  outside_.dialogs.answers = {Answer::kIgnore, Answer::kRetry, Answer::kAbort};
  Draw();
  ASSERT_EQ(outside_.dialogs.messages.size(), 1);
  const Message& message = outside_.dialogs.messages.front();
  EXPECT_EQ(message.title, "Error in ZEB -  Draw View Module");
  EXPECT_EQ(message.text, "9 Subscript out of range\r\nin Module PipeDraw - Draw view at line 80");
  EXPECT_EQ(message.buttons, MessageButtons::kAbortRetryIgnore);
  EXPECT_EQ(surface_.Calls("line").size(), 2);
  EXPECT_TRUE(outside_.files.Bytes("/prog/ZEB_error.log").find("Subscript") != std::string::npos);
  Draw();
  EXPECT_EQ(outside_.dialogs.messages.size(), 3);
  EXPECT_EQ(surface_.Calls("line").size(), 1);

  project_.ViewMode = view::kSouthWest;  // its frame needs every pipe
  outside_.dialogs.answers = {Answer::kIgnore};
  Draw();
  EXPECT_EQ(outside_.dialogs.messages.size(), 4);
  EXPECT_TRUE(surface_.Calls("line").empty());
}

}  // namespace
}  // namespace zeb::test
