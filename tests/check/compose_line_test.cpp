// Pipe lines and their direction codes, read and written.
#include <gtest/gtest.h>

#include <tuple>

#include "check/compose_line.h"
#include "check/direction_code.h"
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

TEST(DirectionCode, ReadsWords) {
  const std::tuple<const char*, bool, float, float> cases[] = {
      {"N", true, 0, 0},           {"NORTH", true, 0, 0},        {"NE", true, 45, 0},
      {"EAST-WIND", true, 90, 0},  {"SE", true, 135, 0},         {"S@12.5", true, 180, 12.5F},
      {"SW", true, 225, 0},        {"W@-2.5", true, 270, -2.5F}, {"NW", true, 315, 0},
      {"UP", true, 999, 0},        {"D", true, -999, 0},         {"DOWNWARD", true, -999, 0},
      {"DN", false, 0, 0},         {"D@5", false, 0, 0},         {"NORTH-EAST", true, 0, 0},
      {"SOUTHEAST", true, 180, 0}, {"*64@5", true, 64, 5},       {"*0", true, 0, 0},
      {"*360", true, 360, 0},      {"*400", true, 0, 0},         {"*-10", true, 0, 0},
      {"N@90", true, 0, 90},       {"N@-90.1", true, 0, 0},      {"@5", false, 0, 0},
      {"", false, 0, 0},           {"X@5", false, 0, 0},         {"\tN", false, 0, 0}};
  for (const auto& [word, is_direction, direction, slope] : cases) {
    SCOPED_TRACE(word);
    DirectionCode code;
    EXPECT_EQ(ParseDirection(word, code), is_direction);
    EXPECT_EQ(code.direction, direction);
    EXPECT_EQ(code.slope, slope);
  }
}

TEST(DirectionCode, WritesByWholeDegrees) {
  const std::tuple<float, float, const char*> cases[] = {{0, 0, "N"},
                                                         {360, 0, "N"},
                                                         {44.6F, 0, "NE"},
                                                         {44.5F, 0, "*44.5"},
                                                         {45.5F, 0, "*45.5"},
                                                         {134.5F, 0, "*134.5"},
                                                         {270, -2.5F, "W@-2.50"},
                                                         {64, 5, "*64.0@5.00"},
                                                         {999, 5, "U"},
                                                         {-999, 0, "D"},
                                                         {123.44F, -12.345F, "*123.4@-12.35"}};
  for (const auto& [direction, slope, text] : cases) {
    EXPECT_EQ(DirectionText(direction, slope), text);
  }
}

}  // namespace
}  // namespace zeb::test
