#include <tuple>
#include <utility>

#include "check_fixture.h"
#include "project/fault_report.h"
#include "services/text.h"
#include "support/slots.h"

namespace zeb::test {
namespace {

using CheckRunning = CheckFixture;

// Pipes one behind the other.
std::string RunOf(int pipes, const std::string& rest) {
  std::string lines;
  for (int node = 1; node <= pipes; ++node) AddPipe(lines, node, node + 1, rest);
  return lines;
}

TEST_F(CheckRunning, ACleanCheckLeavesTheProjectChecked) {
  project.ProjectPath = "/JOBS/A.ZEB";
  files.Put("/JOBS/A.ZEB", std::string(5000, ' '));
  Check("1 2 50 3 N / 2 3 50 3 N 1 0 1 12 / END of it / 3 4 50 3 N");
  EXPECT_EQ(project.ModelState, 2);
  EXPECT_EQ(project.PipeDataFile, "TEST.PDT");
  EXPECT_EQ(project.ProjectTitle, "Test job");
  EXPECT_EQ(project.PipeCountText, " 2 pipes and 1 heads");
  EXPECT_EQ(project.PipeSizeAsRead[2], 50);
  EXPECT_EQ(project.PipeSizeIndexAsRead[2], 3);
  EXPECT_EQ(project.PipeMark[2], -6666);
  EXPECT_EQ(
      Slots(project.HeadCodeLines, 1, 2),
      (Texts{"01 15.0  80.00   0.50 STD1        /JOBS/A.ZEB", "02 10.0  57.00   0.35 LIGHT   "}));
  EXPECT_EQ(project.MinHeadCode, 1);
  EXPECT_EQ(project.MaxHeadCode, 1);
  EXPECT_EQ(shell.panels[Panel::kHint], "End of checking /JOBS/A.ZEB");
  EXPECT_EQ(shell.panels[Panel::kCounts], "P: 2 L: 0 H: 1 A:12.0m2");
  EXPECT_EQ(shell.tips[Panel::kCounts], " 2 Pipes, 0 Loops and 1 Heads totalling   12.000m2");
  EXPECT_EQ(shell.panels[Panel::kErrors], "[ON]");
  EXPECT_TRUE(shell.features[Feature::kCalculateMenu]);
  EXPECT_TRUE(shell.features[Feature::kEditMenu]);
  EXPECT_FALSE(shell.features[Feature::kPrintMenu]);
  EXPECT_FALSE(shell.busy_pointer);
  EXPECT_TRUE(shell.modal_forms.empty());
}

TEST_F(CheckRunning, SkippedLinesAndTheSmallestLine) {
  Check("Z!Z! / ' 1 2 50 3 N / 12 / 1 2");
  EXPECT_EQ(FaultNumbers(), std::vector{6});
  EXPECT_EQ(project.PipeCount, 1);
  EXPECT_EQ(project.PipeLengthIn[1], 0.01F);
  EXPECT_EQ(project.UnsizedCount, 1);
  Check("end");
  EXPECT_EQ(project.PipeCount, 0);
  EXPECT_EQ(project.MaxNode, 0);
  EXPECT_EQ(project.ModelState, 2);
}

TEST_F(CheckRunning, OptionsAreFoundAnywhereInALine) {
  Check(
      "1 2 50 3 N / 2 3 50 3 N 0 0 0 0 vj 2 pd.25 EVALVE3AE-1at2 / 3 4 80 3 N HY700 1 0 1 9 / 3 5 "
      "50 3 E 1 0 1 9 HY500 DD0");
  EXPECT_EQ(project.PipeVJ[2], 2);
  EXPECT_EQ(project.PipePressDrop[2], 0.25F);
  EXPECT_EQ(project.PipeAddLength[2], 0.0F);  // "AL" without a number behind it
  EXPECT_EQ(project.PipeAE[2], -1);
  EXPECT_EQ(project.PipeAT[2], 2);
  EXPECT_EQ(project.PipeHydrant[3], 700.0F);
  EXPECT_EQ(project.PipeHydrant[4], 0.0F);  // a head and a hydrant: the head stays
  EXPECT_EQ(project.HydrantCount, 1);
  EXPECT_EQ(project.HeadDensity[1], 0.0F);  // given as 0, not the project's 5
}

TEST_F(CheckRunning, HeadsAndDischarges) {
  Check(
      "1 2 50 3 N 1 0 1 .09 DD7 / 2 3 50 3 N 1 0 2 9 AB 200 4 25 / 3 4 50 3 N 1 0 AB 5 0 1 / 4 5 "
      "50 3 N 1 0 2 9");
  EXPECT_EQ(project.HeadCount, 4);
  EXPECT_EQ(project.HeadArea[1], 0.0F);
  EXPECT_EQ(Slots(project.HeadDensity, 1, 3), (std::vector{0.0F, 8.0F, 0.0F}));
  EXPECT_EQ(project.HeadCode[2], -1.0F);
  EXPECT_EQ(project.HeadK[2], 100.0F);  // 200 / root 4
  EXPECT_EQ(project.HeadStartPressure[2], 4.0F);
  EXPECT_EQ(project.PipeHead[2], 2);
  EXPECT_EQ(project.PipeABFlow[3], 10.0F);
  EXPECT_EQ(project.PipeABPress[3], 0.1F);
  EXPECT_EQ(project.HeadK[4], 57.0F);
  EXPECT_EQ(project.HeadOrifice[4], 10.0F);
  EXPECT_EQ(project.TotalHeadArea, 35.0F);
  EXPECT_EQ(project.MaxArea, 9.0F);  // discharges have no part in the ranges
  EXPECT_EQ(project.HeadCodeUses[2], 1.0F);
}

TEST_F(CheckRunning, LargeHeadsWatchTheirAreas) {
  const std::tuple<std::string, std::string, int> cases[] = {
      {"9.3", "7.4", 0}, {"9", "7.3", 1}, {"9", "9.4", 2}, {"3", "7.3", 0}};
  for (const auto& [first, second, state] : cases) {
    Check("1 2 50 3 N 1 0 4 " + first + " / 2 3 50 3 N 1 0 4 " + second);
    EXPECT_EQ(project.HeadAreaState, state) << second;
  }
}

TEST_F(CheckRunning, StoppingAtABoxOpensTheProjectData) {
  stop_at = 2;
  Check("1 2 50 3 Q / 2 3 50 3 Q / 3 4 50 3 Q", CheckMode::kComposeLines);
  EXPECT_EQ(captions.size(), 2U);
  EXPECT_EQ(project.ModelState, 1);
  EXPECT_EQ(project.PipeCount, 0);
  EXPECT_EQ(shell.modal_forms, (Texts{"ZEBF04", "ZEBF04", "ZEBF02"}));
  EXPECT_EQ(project.PipeLines[20], "2 3 50 3 Q");
  EXPECT_EQ(shell.redraws, 1);
  EXPECT_TRUE(shell.features[Feature::kDrawMenu]);
}

TEST_F(CheckRunning, BoxesCanBeSuppressed) {
  session.SuppressErrors = true;
  const std::string lines = RunOf(10, " 50 1 Q");
  Check(lines);
  EXPECT_TRUE(captions.empty());
  EXPECT_EQ(shell.panels[Panel::kErrors], "Err #: 10 [OFF]");
  EXPECT_EQ(shell.tips[Panel::kErrors], "10 Errors found on last check ");
  EXPECT_EQ(project.WarningCount, 10);
  EXPECT_EQ(project.ErrorNumberText, "10 in [Untitled]");
  session.SuppressErrors = false;
  Check(lines, CheckMode::kSilent);
  EXPECT_TRUE(captions.empty());
  EXPECT_FALSE(project.CheckSummary.empty());
}

TEST_F(CheckRunning, AFailureEndsThePass) {
  const std::pair<std::string, std::string> cases[] = {
      {"99999 3 50 3 N", "Error 6 at line 20 in reading in pipes part"},
      {"2 3 50 1e39 N", "Error 6 at line 20 in reading in pipes part"},
      {"2 3 50 3 N VJ40000", "Error 6 at line 20 in reading in pipes part"},
      {"2 3 50 3 N 1 0 1 3e38", "Error 6 at line 60 in head details part"},
      {"2 3 50 3 N 1 21 1 9", "Error 9 at line 110 in extras part"}};
  for (const auto& [line, title] : cases) {
    SCOPED_TRACE(line);
    SetItem(Item::kInstallation, "-AC");
    dialogs.messages.clear();
    project.CheckSummary.clear();
    Check("1 2 50 3 N 1 0 1 3e38 / " + line);
    ASSERT_EQ(dialogs.Shown(),
              (Boxes{{title, "Cannot check your job data - try getting a printout from EDIT"}}));
    EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::kStop);
    EXPECT_EQ(project.ModelState, 1);
    EXPECT_EQ(project.CheckSummary, "");
    EXPECT_FALSE(shell.busy_pointer);
  }
}

TEST_F(CheckRunning, AnUnknownAuthorityOrPipeDataEndTheCheck) {
  SetItem(Item::kAuthority, "Nobody's rules");
  Check("1 2 50 3 N");
  EXPECT_EQ(dialogs.Titles(), Texts{"Error with design authority"});
  EXPECT_FALSE(shell.features[Feature::kEditMenu]);
  EXPECT_FALSE(shell.features[Feature::kToolBars]);
  EXPECT_EQ(shell.redraws, 0);

  SetItem(Item::kAuthority, "FM Rules");
  SetItem(Item::kPipeData, "none");
  Check("1 2 50 3 N");
  EXPECT_EQ(project.RuleType, 3);
  EXPECT_EQ(dialogs.Titles().back(), "This file is missing or corrupt");
  EXPECT_TRUE(shell.features[Feature::kEditMenu]);
  EXPECT_EQ(project.ModelState, 1);
  EXPECT_EQ(project.PipeCount, 0);
}

TEST_F(CheckRunning, FurtherHeadsTakeTheLastSlotAndTheModelIsTooLarge) {
  Check(RunOf(1560, " 50 1 N 1 0 1 9"));
  EXPECT_EQ(project.HeadCount, 1559);
  EXPECT_EQ(project.HeadPipe[1559], 1560.0F);
  EXPECT_EQ(project.PipeHead[1559], 1559);
  EXPECT_EQ(project.HeadCodeUses[1], 1560.0F);
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_TRUE(Contains(dialogs.messages[0].text, "1559 heads, but the limit is 1500."));
  EXPECT_FALSE(shell.features[Feature::kAdd]);
  Check(RunOf(1500, " 50 1 N 1 0 1 9"));
  EXPECT_EQ(dialogs.messages.size(), 1U);
  EXPECT_TRUE(shell.features[Feature::kAdd]);
}

TEST_F(CheckRunning, SpareNodesRunOut) {
  session.SuppressErrors = true;
  std::string lines = "1 2 50 1 N";
  for (int i = 0; i < 89; ++i) lines += " / 2 2 50 1 E";
  Check(lines);
  EXPECT_EQ(project.MaxNode, 9999);
  Check(lines + " / 2 2 50 1 E");
  EXPECT_EQ(dialogs.Titles().back(), "Error 9 at line 20 in reading in pipes part");
}

TEST_F(CheckRunning, SomePointerCommandsDrawThePictureThemselves) {
  for (const int mode : {0, 1, 2, 5, 6, 7, 18, 19, 22}) {
    project.CommandMode = mode;
    shell.redraws = 0;
    Check("1 2 50 3 N");
    const bool draws_itself = mode == 1 || mode == 5 || mode == 6 || mode >= 19;
    EXPECT_EQ(shell.redraws, draws_itself ? 0 : 1) << mode;
  }
}

}  // namespace
}  // namespace zeb::test
