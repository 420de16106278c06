#include "calc/operating_heads.h"
#include "view/picks.h"
#include "view/pointer_command.h"
#include "view/pointer_machine.h"
#include "view_fixture.h"

namespace zeb::test {
namespace {

// A long pipe, a short one at its end, and one with its ends off the picture; two heads.
class PointerTest : public ViewTest {
 protected:
  PointerTest() {
    project_.PipeSizeCount = 1;
    AddPipe(0, 0, 0, 0, 90, 1);
    AddPipe(1, 0, 0, 0, 90, 2);
    AddPipe(1, 0, 0, 0, 0);
    Place(1, {100, 200}, {400, 200});
    Place(2, {400, 200}, {420, 200});
    Place(3, {300, -500}, {300, 540});
    shell_.on_redraw = nullptr;
  }

  void Place(int pipe, Point start, Point end) {
    project_.PipeScreenX1[pipe] = start.x;
    project_.PipeScreenY1[pipe] = start.y;
    project_.PipeScreenX2[pipe] = end.x;
    project_.PipeScreenY2[pipe] = end.y;
  }
  void Drag(Point from, Point to) {
    pointer_.pic1_MouseDown(MouseButton::kLeft, from);
    pointer_.pic1_MouseMove(to);
    pointer_.pic1_MouseUp(MouseButton::kLeft, to);
  }

  PointerMachine pointer_{session_, surface_};
};

struct PickCase {
  Point at;
  int node;
  int pipe;
  int head;
};

TEST_F(PointerTest, PicksTheNearestEndMiddleOrHead) {
  for (const PickCase& expected :
       std::vector<PickCase>{{{395, 200}, 1, 2, 1},  // near the end of the long one
                             {{250, 200}, 0, 1, 0},  // its middle
                             {{410, 200}, 1, 2, 1},  // between two ends: the first
                             {{300, 20}, 0, 3, 0},   // the middle of the third
                             {{300, 540}, 3, 0, 0},  // its end, off the picture
                             {{410, 299.9F}, 0, 2, 0},
                             {{410, 300}, 0, 0, 0}}) {  // 100 units from the middle
    project_.PickedPipe = 99;
    LookupNode(project_, expected.at);
    EXPECT_EQ(project_.PickedPipe, expected.node) << expected.at.x;
    LookupPipe(project_, expected.at);
    EXPECT_EQ(project_.PickedPipe, expected.pipe) << expected.at.x;
    LookupHead(project_, expected.at);
    EXPECT_EQ(project_.PickedPipe, expected.head) << expected.at.x;
  }
}

TEST_F(PointerTest, TheDefaultCommandStartsAfresh) {
  project_.PickedPipe = 4;
  project_.MarkedNode = -4;
  project_.CommandMode = 9;
  project_.SelectedHeadsMode = 1;
  ViewCommandReset(session_);
  EXPECT_EQ(project_.PickedPipe, 0);
  EXPECT_EQ(project_.MarkedNode, 0);
  EXPECT_EQ(project_.CommandMode, 7);
  EXPECT_EQ(project_.SelectedHeadsMode, 1);
  EXPECT_EQ(shell_.panels[Panel::kMode], "VIEW");
  EXPECT_EQ(shell_.panels[Panel::kHint],
            "Plan - click mouse near centre of a pipe to review its information");
  EXPECT_EQ(shell_.closed_forms, (std::vector<std::string>{"frmViewInfo"}));
  Dview(session_);
  EXPECT_EQ(project_.SelectedHeadsMode, 0);
}

TEST_F(PointerTest, APressInViewModeShowsThePipe) {
  const std::string green = "line 100.0,200.0 400.0,200.0 c10 w1";
  project_.MarkedNode = 3;
  pointer_.pic1_MouseDown(MouseButton::kLeft, {250, 210});
  EXPECT_EQ(project_.MarkedNode, 0);
  pointer_.pic1_MouseDown(MouseButton::kLeft, {250, 210});  // again, as after a redraw
  pointer_.pic1_MouseDown(MouseButton::kLeft, {415, 200});
  EXPECT_EQ(surface_.calls, (Calls{green, green, "line 100.0,200.0 400.0,200.0 c9 w1",
                                   "line 400.0,200.0 420.0,200.0 c10 w1"}));
  EXPECT_EQ(shell_.open_forms, (std::vector<std::string>{"frmViewInfo"}));
  pointer_.pic1_MouseDown(MouseButton::kLeft, {600, 460});
  EXPECT_EQ(project_.HighlightedPipe, 0);
}

TEST_F(PointerTest, TheRightButtonGoesBackToViewAndOffersTheTexts) {
  project_.CommandMode = 9;
  project_.DisplayItem = 2;
  shell_.popup_answers = {5};
  for (int press = 0; press < 2; ++press) {  // the second picks nothing
    pointer_.pic1_MouseDown(MouseButton::kRight, {250, 210});
    EXPECT_EQ(project_.CommandMode, 7);
    EXPECT_EQ(shell_.panels[Panel::kMode], "VIEW");
    EXPECT_EQ(project_.PickedPipe, 1);
    EXPECT_EQ(project_.DisplayItem, 5);
    EXPECT_EQ(shell_.redraws, 1);
  }
  EXPECT_EQ(shell_.popups[0].entries[17], "Actual pipe length");
  EXPECT_EQ(shell_.popups[0].ticked, 2);
  EXPECT_TRUE(shell_.open_forms.empty());
}

TEST_F(PointerTest, EscapeLeavesTheModeAndItsHint) {
  project_.CommandMode = 9;
  project_.ViewHint = "drag";
  pointer_.KeyEscape();
  EXPECT_EQ(project_.CommandMode, 7);
  EXPECT_EQ(shell_.panels[Panel::kMode], "VIEW");
  EXPECT_EQ(project_.ViewHint, "drag");
}

TEST_F(PointerTest, AClickTogglesTheNearestHead) {
  Cind(session_);
  Drag({425, 210}, {425, 210});
  EXPECT_EQ(project_.HeadOn[1], 0);
  EXPECT_EQ(project_.HeadOn[2], 1);
  pointer_.pic1_MouseUp(MouseButton::kLeft, {425, 210});
  Drag({600, 460}, {600, 460});
  EXPECT_EQ(project_.SelectedHeadCount, 1);
}

TEST_F(PointerTest, ABoxTogglesTheHeadsInItAndOnItsEdge) {
  Cboxes(session_);
  pointer_.pic1_MouseDown(MouseButton::kLeft, {420, 180});
  EXPECT_EQ(shell_.panels[Panel::kHint],
            "Still holding mouse button down, move to include heads required to be on/off and "
            "release button");
  pointer_.pic1_MouseMove({390, 220});
  pointer_.pic1_MouseUp(MouseButton::kLeft, {390, 220});
  EXPECT_EQ(project_.SelectedHeadCount, 2);
  EXPECT_EQ(surface_.Count("invert 420.0,180.0 390.0,220.0 c4 w1"), 2);
  Drag({395, 195}, {405, 205});
  EXPECT_EQ(project_.HeadOn[1], 0);
  EXPECT_EQ(project_.HeadOn[2], 1);
}

TEST_F(PointerTest, AModeOfAnotherFolderGetsItsEvents) {
  std::vector<int> picked;
  pointer_.AddMode(
      {.mode = 6,
       .press = [](PointerContext& context) { LookupNode(context.session.project, context.at); },
       .release =
           [&](PointerContext&) {
             picked.push_back(project_.PickedPipe);
             throw RuntimeFailure(failure::kOverflow);
           }});
  for (const int mode : {6, 0}) {
    project_.CommandMode = mode;
    Drag({418, 200}, {420, 200});
  }
  EXPECT_EQ(picked, (std::vector<int>{2}));
  ASSERT_EQ(outside_.dialogs.messages.size(), 1);
  EXPECT_EQ(outside_.dialogs.messages[0].text, "Overflow\r\nin ZEB.ZEBF03.pic1_MouseUp at line 50");
}

TEST_F(PointerTest, ADoubleClickEditsThePickedPipeOutsideTheEditCommand) {
  std::vector<int> edited;
  pointer_.OnDoubleClick(5, [&](int pipe) { edited.push_back(pipe); });
  for (const auto& [mode, pipe] : std::vector<std::pair<int, int>>{{7, 2}, {5, 2}, {7, 0}}) {
    project_.CommandMode = mode;
    project_.PickedPipe = pipe;
    pointer_.pic1_DblClick(MouseButton::kLeft);
  }
  EXPECT_EQ(edited, (std::vector<int>{2}));
}

}  // namespace
}  // namespace zeb::test
