#include "check/pump_search.h"
#include "check/summary_form.h"
#include "check_fixture.h"
#include "support/real_file.h"
#include "support/slots.h"

namespace zeb::test {
namespace {

const std::string kSmallSystem =
    "1 2 50 2.5 U / 2 3 50 4 E 1 3 / 3 4 25 3 N 1 0 1 12 / 3 5 25 3 S 1 0 2 9 DD 4 / "
    "3 6 25 2 E OP80 HY100 AL1.5 / 2 3 50 4 E";

TEST_F(CheckFixture, SummaryToTheLetter) {
  SetItem(Item::kAuthority, "EN 12845 Rules");
  Check(kSmallSystem);
  // Lengths: 2.5 + 4 of 50 mm, 3 + 3 + 2 + 1.5 of 25 mm.
  // Volume: (6.5 x 53.1^2 + 9.5 x 27.3^2) x 3.14159 / 4000000.
  EXPECT_EQ(project.CheckSummary, RealFile(ZEB_FIXTURES "/small_system_summary.txt"));
}

TEST_F(CheckFixture, SummaryOfOnePipeHasSingleLinesAndUnsizedPipes) {
  Check("1 2 0 3 N");
  EXPECT_EQ(project.CheckSummary, RealFile(ZEB_FIXTURES "/one_pipe_summary.txt"));
  EXPECT_EQ(project.PipeUnsized[1], 1);
  Check("1 2 1 3 N");
  EXPECT_EQ(project.UnsizedCount, 0);
  EXPECT_EQ(project.PipeSizeIndex[1], 0);
  EXPECT_TRUE(project.Faults.empty());
}

TEST_F(CheckFixture, SummaryFormOpensWhenThereIsSomethingToWarnOf) {
  std::string caption;
  std::string text;
  shell.OnForm<SummaryForm>("frmCalcSummary", [&](SummaryForm& form) {
    caption = form.Caption + " / " + form.Heading;
    text = form.Text;
    EXPECT_FALSE(form.ShowsCalculationCommands);
  });
  Check("1 2 50 3 N");
  EXPECT_EQ(caption, "");
  Check(kSmallSystem, CheckMode::kSilent);
  EXPECT_EQ(caption, "");
  Check(kSmallSystem);
  EXPECT_EQ(caption, "CHECK SUMMARY FOR [Untitled] / Test job");
  EXPECT_EQ(text, project.CheckSummary);
}

TEST_F(CheckFixture, PumpIsTheLastSupplyOfThatNameWithAPressure) {
  const std::string name = "A pump with a name that is longer than its column";
  project.SupplyCount = 4;
  project.SupplyNames[1] = "None";
  project.SupplyNames[2] = project.SupplyNames[3] = name.substr(0, 26);
  project.SupplyNames[4] = "Nonesuch main";
  for (int row = 1; row <= 4; ++row) project.SupplyTable[row][1] = 5.0F;
  const std::pair<std::string, int> cases[] = {
      {name, 3}, {"None", 0}, {"Other", 0}, {"Nonesuch main", 0}};
  for (const auto& [item, row] : cases) {
    SetItem(Item::kSupply, item);
    EXPECT_EQ(FindPump(project), row != 0) << item;
    EXPECT_EQ(project.PumpRow, row);
  }
  EXPECT_EQ(Slots(project.SupplyPaths, 2, 3), (Texts{"", "[Untitled]"}));
  project.SupplyTable[3][1] = 0.5F;
  SetItem(Item::kSupply, name);
  EXPECT_FALSE(FindPump(project));
}

}  // namespace
}  // namespace zeb::test
