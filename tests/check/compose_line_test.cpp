#include "check/compose_line.h"

#include "check_fixture.h"
#include "support/project_text.h"

namespace zeb::test {
namespace {

TEST_F(CheckFixture, LinesComposeAndReadBack) {
  SetItem(Item::kInstallation, "1 -AC");
  const std::pair<const char*, const char*> cases[] = {
      {"1 2 50 3 NORTH", "   1    2  50   3.000 N           1  0"},
      {"9900 9901 0 999.9 *64.26@-12.5 2 15", "9900 9901   0 999.900 *64.3@-12.  2 15"},
      {"1 2 50 .001 U@5 2 -1 1 12.5", "   1    2  50   0.010 U           2  0   1 12.500"},
      {"1 2 50 3 S@2 1 0 2 -9 dd 7.256",
       "   1    2  50   3.000 S@2.00      1  0   2  9.000 DD   7.26"},
      {"1 2 50 3 S 1 0 2 9 DD5.1", "   1    2  50   3.000 S           1  0   2  9.000"},
      {"1 2 50 3 N 1 0 1 0.09 DD7", "   1    2  50   3.000 N           1  0   1  0.000"},
      {"1 2 50 3 N 1 0 0 0 AE-1 AT12 HY-900.4 OP80 PD0.25 AL-1.5 VJ3",
       "   1    2  50   3.000 N           1  0 AE -1 AT 12 HY  -900 OP    80 PD 0.250 AL  -1.5 "
       "VJ  3"},
      {"1 2 50 3 N HY1 OP1 PD.1 VJ-1", "   1    2  50   3.000 N           1  0"},
      // Wider than their columns.
      {"1 2 50 3 N 1 0 1 100", "   1    2  50   3.000 N           1  0   1 100.000"},
      {"1 2 50 3 N 1 0 4 12 AE-123 HY1234567",
       "   1    2  50   3.000 N           1  0   4 12.000 AE-123 HY1234567"},
      // The head code of a discharge is not read.
      {"1 2 50 3 N 1 0 2 9 AB1000 2.5 100",
       "   1    2  50   3.000 N           1  0 AB1000.000  2.500  100.0"},
      {"1 2 50 3 N AB5 0 -1", "   1    2  50   3.000 N           1  0 AB10.000  0.100    0.0"}};
  for (const auto& [given, composed] : cases) {
    SCOPED_TRACE(given);
    Check(given, CheckMode::kComposeLines);
    EXPECT_TRUE(project.Faults.empty());
    EXPECT_EQ(project.PipeLines[19], composed);
    Check(composed, CheckMode::kComposeLines);
    EXPECT_EQ(project.PipeLines[19], composed);
  }
}

TEST_F(CheckFixture, OnlyCleanLinesAreComposed) {
  const std::string lines =
      "' A comment / 1 2 50 3 N / Z!Z! / 2 3 50 1000 N / 2 3 50 3 N / ab / 3 4 50 3 N 1 0 3 50 / 4 "
      "5 50 3 Q";
  Check(lines, CheckMode::kComposeLines);
  const Texts expected = {"' A comment",
                          "   1    2  50   3.000 N           1  0",
                          "Z!Z!",
                          "2 3 50 1000 N  ???",
                          "2 3 50 3 N",  // a repeat is dropped
                          "ab",
                          "   3    4  50   3.000 N           1  0   3 50.000",
                          "4 5 50 3 Q  ???",
                          "END"};
  EXPECT_EQ(LinesOf(project, kFirstPipeLine), expected);
  Check(lines, CheckMode::kKeepLines);
  EXPECT_EQ(project.PipeLines[20], "1 2 50 3 N");
  EXPECT_EQ(project.PipeLines[22], "2 3 50 1000 N");
}

TEST_F(CheckFixture, ASavedCopyHasOnlyTheHeadsThatOperate) {
  Check("1 2 50 3 N 1 0 1 12 / 2 3 50 3 N 1 0 1 12 AL2 / 2 4 50 3 E 1 0 AB1000 2 0");
  project.HeadOn[1] = 1;
  project.SavedCopyPath = "/COPY.ZEB";
  const char* expected[] = {"   1    2  50   3.000 N           1  0   1 12.000",
                            "   2    3  50   3.000 N           1  0 AL   2.0",
                            "   2    4  50   3.000 E           1  0"};
  for (int pipe = 1; pipe <= 3; ++pipe) {
    ComposePipeLine(session, pipe);
    EXPECT_EQ(project.ComposedLine, expected[pipe - 1]);
  }
  EXPECT_EQ(project.PipeLines[20], "2 3 50 3 N 1 0 1 12 AL2");

  project.SavedCopyPath.clear();
  project.PipeError[2] = -1;
  ComposePipeLine(session, 2);
  EXPECT_EQ(project.PipeLines[20], "Z!Z!");
}

}  // namespace
}  // namespace zeb::test
