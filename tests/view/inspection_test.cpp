#include "services/text.h"
#include "view/pipe_details.h"
#include "view/pipe_details_form.h"
#include "view/pipe_highlight.h"
#include "view/pipe_inspector_form.h"
#include "view/pipe_properties.h"
#include "view_fixture.h"

namespace zeb::test {
namespace {

using Properties = std::vector<PipeProperty>;

// The riser, pipe 3, has a head.
class InspectionTest : public ViewTest {
 protected:
  InspectionTest() {
    AddCornerAndRiser();
    project_.PipeTypeRefs[1] = "MB";
    project_.TypeC[1] = 120;
    project_.PipeBores[3][1] = 53.1F;
    project_.AuthorityStatic = 10;
    project_.PipeType[3] = project_.PipeType[1] = 1;
    project_.PipeSizeIndex[3] = project_.PipeSizeIndex[1] = 3;
    project_.PipeElbows[3] = 2;
    project_.PipeLengthIn[3] = project_.PipeLength[3] = project_.PipeRise[3] = 6;
    project_.PipeEqLength[3] = 41.5F;
    project_.PipeDrop[3] = 0.083F;
    project_.PipeStartPressure[3] = 2.663F;
    project_.PipeEndPressure[3] = 1.98F;
    project_.PipeFlow[3] = 120.25F;
    project_.PipeVelocity[3] = 0.91F;
    project_.HeadCode[1] = 2;
    project_.HeadOrifice[1] = -15;
    project_.HeadK[1] = 80;
    project_.HeadPressure[1] = 1.98F;
    project_.HeadMinPress[1] = 0.35F;
    project_.HeadFlow[1] = 112.5F;
    project_.HeadArea[1] = 12;
    project_.HeadDensity[1] = 5;
    Draw();
    surface_.calls.clear();
  }
};

TEST_F(InspectionTest, ListsThePipeItsResultsAndItsHead) {
  project_.ModelState = model_state::kCalculated;
  EXPECT_EQ(PipeProperties(project_, 3),
            (Properties{{"Node No", "3 - 4", ""},
                        {"DN (ID)", "50mm (53.10)", ""},
                        {"Pipe Type", "MB (120)", ""},
                        {"Pipe Length", "6.000 (41.500)", "m"},
                        {"Pipe Fittings", "2E", ""},
                        {"Pressure Drop", "0.083", "bar"},
                        {"Start Pressure", "2.663", "bar"},
                        {"End Pressure", "1.980", "bar"},
                        {"Static", "0.600", "bar"},
                        {"Flow", "120.3", "L/min"},
                        {"Velocity", "0.9", "m/s"},
                        {"", "", ""},
                        {"Head No.", "1", ""},
                        {"Head Code", "2", ""},
                        {"K-Factor", "80.00", ""},
                        {"Pres - Atl (Min)", "1.98 - (0.35)", "bar"},
                        {"Flow)", "112.50", "l/min"},
                        {"Area", "12.00", "m2"},
                        {"Height", "6.000", "m"},
                        {"Atl dens - (Reqd. dens)", "9.4 - (5.0)", "mm/min"}}));
  project_.ModelState = model_state::kChecked;
  project_.HeadCode[1] = -1;
  project_.HeadFlow[1] = 0;
  EXPECT_EQ(PipeProperties(project_, 3).size(), 5 + 6);
  project_.PipeSize[1] = 0;
  EXPECT_EQ(PipeProperties(project_, 1)[1].value, "AUTO");
  EXPECT_EQ(PipeProperties(project_, 1)[3].value, "0.000");
  EXPECT_EQ(PipeProperties(project_, 1).size(), 5);
}

TEST_F(InspectionTest, WritesAllDetailsOfAPipe) {
  project_.PipeUnsized[3] = 1;
  const auto before = SplitLines(ShowPipeDetails(session_, 3));
  project_.ModelState = model_state::kCalculated;
  const auto after = SplitLines(ShowPipeDetails(session_, 3));
  EXPECT_EQ(before.size(), 22 + 11 + 1);
  EXPECT_EQ(after.size(), 22 + 8 + 11 + 4 + 1);
  for (const auto& [line, text] :
       std::vector<std::pair<int, std::string>>{{0, " Pipe size:    50 mm [0]"},
                                                {2, "      Bore:    53.10 mm"},
                                                {3, "  Vert len:     6.000 m"},
                                                {5, " Direction:    Up"},
                                                {21, "  Upstream:     2"},
                                                {22, " Flow rate:   120.3 L/min"},
                                                {27, "    Static:     0.600 bar"},
                                                {29, "     P.d/m:     2.00 mbar/m"},
                                                {30, "    Head number 1 of 1"},
                                                {33, "   Orifice:    15.0 mm"},
                                                {42, " Act. dens:     9.38 mm/min"},
                                                {45, "End of details for pipe 3"}}) {
    EXPECT_EQ(after[static_cast<std::size_t>(line)], text);
  }
  EXPECT_EQ(project_.PipeHint, "Start node 3   End node 4");
  EXPECT_EQ(SplitLines(ShowPipeDetails(session_, 1))[3], "Horiz leng:     0.000 m");
  EXPECT_EQ(DirectionWords(135), "South East");
  EXPECT_EQ(DirectionWords(360), "North");
  EXPECT_EQ(DirectionWords(44.5F), "44.5 deg from N");
}

TEST_F(InspectionTest, MarksAPipeAndTakesTheMarkOffTheOneBefore) {
  project_.PipeSize[1] = 65;  // drawn wide, but marked thin
  for (const int pipe : {1, 3, 3, 0}) HighlightPipe(project_, surface_, pipe);
  EXPECT_EQ(surface_.calls,
            (Calls{"line 50.0,430.0 590.0,430.0 c10 w1", "line 50.0,430.0 590.0,430.0 c9 w1",
                   "line 590.0,50.0 590.0,50.0 c10 w1", "circle 590.0,50.0 r3.0 c10 w1",
                   "line 590.0,50.0 590.0,50.0 c9 w1", "circle 590.0,50.0 r3.0 c9 w1"}));
  surface_.calls.clear();
  project_.HighlightedPipe = 7;  // gone since
  project_.PipeScreenX1[2] = 0;  // not placed
  HighlightPipe(project_, surface_, 2);
  EXPECT_TRUE(surface_.calls.empty());
}

TEST_F(InspectionTest, TheDetailsWindowStepsWithinThePipes) {
  PipeDetailsForm form(session_, surface_);
  project_.PickedPipe = 1;
  project_.PipeUpstream[3] = 1;
  form.ShowPickedPipe();
  EXPECT_TRUE(form.NextVisible);
  EXPECT_FALSE(form.PreviousVisible);
  EXPECT_FALSE(form.UpStreamVisible);
  const auto step = [&](void (PipeDetailsForm::*button)()) {
    (form.*button)();
    return int{project_.PickedPipe};
  };
  EXPECT_EQ(step(&PipeDetailsForm::cmdPrevious_Click), 1);
  EXPECT_EQ(step(&PipeDetailsForm::cmdUpStream_Click), 1);
  EXPECT_EQ(step(&PipeDetailsForm::cmdNext_Click), 2);
  EXPECT_EQ(step(&PipeDetailsForm::cmdNext_Click), 3);
  EXPECT_FALSE(form.NextVisible);
  EXPECT_EQ(step(&PipeDetailsForm::cmdNext_Click), 3);
  EXPECT_EQ(step(&PipeDetailsForm::cmdUpStream_Click), 1);
  EXPECT_EQ(project_.HighlightedPipe, 1);
  EXPECT_EQ(shell_.open_forms.size(), 1);
  project_.CommandMode = 1;
  form.KeyEscape();
  EXPECT_EQ(project_.CommandMode, 7);
  project_.CommandMode = 1;
  form.Form_Unload();  // already closed
  EXPECT_EQ(project_.CommandMode, 1);
}

TEST_F(InspectionTest, TheInspectorFollowsWhileItIsOpen) {
  PipeInspectorForm form(session_, surface_);
  form.SetData(1);
  EXPECT_TRUE(form.Rows.empty());
  form.munInspect();
  EXPECT_EQ(shell_.panels[Panel::kMode], "View - Pipe Prop");
  form.SetData(2);
  EXPECT_EQ(form.Rows.front().value, "2 - 3");
  EXPECT_EQ(project_.HighlightedPipe, 2);
  form.SetData(0);
  EXPECT_TRUE(form.Rows.empty());
  form.Form_Unload();
  form.SetData(1);
  EXPECT_EQ(project_.HighlightedPipe, 0);
}

}  // namespace
}  // namespace zeb::test
