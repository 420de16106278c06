#include "view/view_commands.h"

#include "view/height_limits_form.h"
#include "view/zoom.h"
#include "view_fixture.h"

namespace zeb::test {
namespace {

using ViewCommandsTest = ViewTest;

struct ViewCase {
  int mode;
  std::string title;
  std::string word;
  int zoom_when_kept;  // ZoomState after a zoom that is kept, and after another
  int zoom_else;
};

TEST_F(ViewCommandsTest, EachViewHasItsWordsAndItsEffectOnAZoom) {
  const std::vector<ViewCase> cases{{1, "Plan", "Plan", 0, 0},
                                    {2, "Front elevation", "Front", 3, 3},
                                    {3, "Side elevation", "Side", 3, 3},
                                    {4, "Isometric from south west (bottom left)", "SW", 3, 0},
                                    {5, "Isometric from south east (bottom right)", "SE", 3, 0},
                                    {6, "Isometric from north west (top left)", "NW", 3, 0},
                                    {7, "Isometric from north east (top right)", "NE", 3, 0}};
  for (std::size_t i = 0; i < cases.size(); ++i) {
    for (const int kept : {0, 1}) {
      project_.ZoomState = 3;
      project_.ZoomKept = kept;
      ViewMenu()[i].run(session_);
      EXPECT_EQ(project_.ZoomState, kept != 0 ? cases[i].zoom_when_kept : cases[i].zoom_else);
    }
    EXPECT_EQ(project_.ZoomKept, cases[i].mode == 1 ? 0 : 1);
    EXPECT_EQ(project_.ViewMode, cases[i].mode);
    EXPECT_EQ(shell_.panels[Panel::kHint], cases[i].title + " - ");
    EXPECT_EQ(shell_.panels[Panel::kView], cases[i].word);
  }
}

TEST_F(ViewCommandsTest, ZoomAsksForABoxOnAFullPlan) {
  AddCornerAndRiser();
  project_.ViewMode = 4;
  project_.ZoomState = 3;
  project_.ZoomKept = 1;
  project_.ZLimitOn = 2;
  Zinall(session_);
  EXPECT_EQ(project_.ViewScaleX, 10);
  EXPECT_EQ(project_.ViewMode, 8);
  EXPECT_EQ(project_.CommandMode, 9);
  EXPECT_EQ(project_.ZoomState, 1);
  EXPECT_EQ(project_.ZoomKept, 0);
  EXPECT_EQ(project_.ZLimitOn, 1);
  EXPECT_EQ(project_.PanLocked, 1);
  EXPECT_EQ(shell_.picture_pointer, PicturePointer::kArrow);
  EXPECT_EQ(shell_.panels[Panel::kView], "Plan");
  EXPECT_EQ(shell_.panels[Panel::kMode], "WHICH PIPES?");
  EXPECT_EQ(shell_.panels[Panel::kHint],
            "Zoom in on current plan - hold mouse button down at bottom left hand corner of pipes "
            "you want to select");
}

TEST_F(ViewCommandsTest, ZoomByHeightsKeepsAPlanThatIsShown) {
  for (const auto& [view, ok, redraws] :
       std::vector<std::tuple<int, bool, int>>{{1, true, 0}, {8, false, 0}, {3, true, 1}}) {
    project_.ViewMode = view;
    project_.ZoomState = 3;
    project_.ZoomKept = 1;
    shell_.redraws = 0;
    shell_.OnForm<HeightLimitsForm>("ZEB39", [this, ok](HeightLimitsForm& form) {
      EXPECT_EQ(project_.ZLimitOn, 2);
      ok ? form.cmdOK_Click() : form.cmdCancel_Click();
    });
    Zinspec(session_);
    EXPECT_EQ(project_.ZLimitOn, ok ? 2 : 1);
    EXPECT_EQ(shell_.redraws, redraws);
    EXPECT_EQ(project_.ZoomKept, 1);
    EXPECT_EQ(project_.CommandMode, 9);
  }
  Vheight(session_);
  EXPECT_EQ(shell_.panels[Panel::kMode], "Min/Max 'Z'");
}

TEST_F(ViewCommandsTest, HeightLimitsAreCorrected) {
  project_.MaxZ = 6.26F;
  project_.MaxZLimit = 4;
  HeightLimitsForm form(session_);
  EXPECT_EQ(form.Message.substr(0, 56),
            "Current heights on job are from 0.0 to 6.3 m\r\n\r\nYou can ");
  EXPECT_EQ(form.MaxHeight, "4.0");
  for (const auto& [low, high, min, max] :
       std::vector<std::tuple<std::string, std::string, float, float>>{{"1.5", "2.5 m", 1.5F, 2.5F},
                                                                       {"-2", "100", 0, 99.99F},
                                                                       {"5", "5", 5, 8},
                                                                       {"120", "200", 120, 123}}) {
    form.MinHeight = low;
    form.MaxHeight = high;
    form.cmdOK_Click();
    EXPECT_EQ(project_.ZLimitOn, 2);
    EXPECT_FLOAT_EQ(project_.MinZLimit, min);
    EXPECT_FLOAT_EQ(project_.MaxZLimit, max);
  }
  form.cmdCancel_Click();
  EXPECT_EQ(project_.ZLimitOn, 1);
  EXPECT_FLOAT_EQ(project_.MaxZLimit, 123);
}

}  // namespace
}  // namespace zeb::test
