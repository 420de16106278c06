#include "check/pump_search.h"
#include "check/summary_form.h"
#include "check_fixture.h"

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
  EXPECT_EQ(project.CheckSummary,
            "        No. of pipes:     5\r\n"
            "        No. of heads:     2\r\n"
            "        No. of loops:     0\r\n"
            "      Orifice plates:     1\r\n"
            "     No. of warnings:     1\r\n"
            "Pipe 2 3 is duplicated\r\n\r\n"
            "           Authority:  EN 12845 Rules\r\n"
            "          Pump curve:  NO\r\n"
            " Total area of heads:    21.000 sq.m\r\n"
            "      AMAO specified:    72.000 sq.m\r\n"
            "    Min. node number:     1\r\n"
            "    Max. node number:     6\r\n"
            "      Min. pipe size:    25     mm\r\n"
            "      Max. pipe size:    50     mm\r\n"
            "    Min. pipe length:     2.000 m\r\n"
            "    Max. pipe length:     4.000 m\r\n"
            "   No. of head codes:     4\r\n"
            "Head  No of    Min         Max\r\n"
            "code  heads    sq.m        sq.m\r\n"
            "  1      1   12.000      12.000\r\n"
            "  2      1    9.000       9.000\r\n"
            "   Min. head orifice:    10.0   mm\r\n"
            "   Max. head orifice:    15.0   mm\r\n"
            "       Min. head 'k':    57.00\r\n"
            "       Max. head 'k':    80.00\r\n"
            "      Min. head area:     9.000 sq.m\r\n"
            "      Max. head area:    12.000 sq.m\r\n"
            "     Min. head press:     0.350 bar\r\n"
            "     Max. head press:     0.500 bar\r\n"
            "    Min. head height:     2.500 m\r\n"
            "    Max. head height:     2.500 m\r\n"
            "        Min. density:     4.00  mm/min\r\n"
            "        Max. density:     5.00  mm/min\r\n"
            "  Number of hydrants:     1\r\n"
            " Total hydrants flow:   100.0   L/min\r\n"
            "     Min. 'x' co-ord:     0.000 m\r\n"
            "     Max. 'x' co-ord:     6.000 m\r\n"
            "     Min. 'y' co-ord:     0.000 m\r\n"
            "     Max. 'y' co-ord:     6.000 m\r\n"
            "     Min. 'z' co-ord:     0.000 m\r\n"
            "     Max. 'z' co-ord:     2.500 m\r\n"
            "          25 mm MED :     9.5   m\r\n"
            "          50 mm MED :     6.5   m\r\n"
            " No of lines in file:    25\r\n"
            "No of pipes in loops:     0\r\n"
            "   Total pipe length:    16.0   m\r\n"
            "   Total pipe volume:     0.020 cu.m\r\n"
            "       \r\n"
            "End of summary for [Untitled]");
}

TEST_F(CheckFixture, SummaryOfOnePipeHasSingleLinesAndUnsizedPipes) {
  Check("1 2 0 3 N");
  EXPECT_TRUE(
      project.CheckSummary.starts_with("        No. of pipes:     1\r\n"
                                       "No. of unsized pipes:     1\r\n"
                                       "        No. of heads:     0\r\n"
                                       "        No. of loops:     0\r\n"
                                       "     No. of warnings:     0\r\n"
                                       "           Authority:"));
  EXPECT_NE(project.CheckSummary.find("code  heads    sq.m        sq.m\r\n"
                                      "   Head orifice size:     0.0   mm\r\n"
                                      "     Head 'k' factor:     0.00\r\n"
                                      "   Head area covered:     0.000 sq.m\r\n"
                                      "   Head min pressure:     0.000 bar\r\n"
                                      "    Min. head height:     0.000 m\r\n"
                                      "    Max. head height:     0.000 m\r\n"
                                      " Density of coverage:     0.00  mm/min\r\n"
                                      "     Min. 'x' co-ord:"),
            std::string::npos);
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
  struct PumpCase {
    std::string item;
    int row;
  };
  for (const PumpCase& pump : {PumpCase{name, 3}, PumpCase{"None", 0}, PumpCase{"Other", 0},
                               PumpCase{"Nonesuch main", 0}}) {
    SetItem(Item::kSupply, pump.item);
    EXPECT_EQ(FindPump(project), pump.row != 0) << pump.item;
    EXPECT_EQ(project.PumpRow, pump.row);
  }
  EXPECT_EQ(project.SupplyPaths[3], "[Untitled]");
  EXPECT_EQ(project.SupplyPaths[2], "");
  project.SupplyTable[3][1] = 0.5F;
  SetItem(Item::kSupply, name);
  EXPECT_FALSE(FindPump(project));
}

}  // namespace
}  // namespace zeb::test
