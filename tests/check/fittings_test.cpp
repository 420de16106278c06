#include <algorithm>
#include <tuple>
#include <utility>

#include "check_fixture.h"

namespace zeb::test {
namespace {

TEST_F(CheckFixture, FittingsFollowTheShape) {
  const std::string ring = "1 2 50 2 E / 2 3 50 3 N / 3 4 50 4 E / 2 5 50 4 E / ";
  // The elbows and the tees of each pipe.
  const std::tuple<std::string, std::vector<int>, std::vector<int>> cases[] = {
      // Straight on and nearly so, a bend, a riser.
      {"1 2 50 3 N / 2 3 50 3 N / 3 4 50 3 *60", {0, 0, 0}, {0, 0, 0}},
      {"1 2 50 3 N / 2 3 50 3 *60.1", {0, 1}, {0, 0}},
      {"1 2 50 3 N / 2 3 50 3 U", {0, 1}, {0, 0}},
      // A branch, a bend at a head, a slope straight up.
      {"1 2 50 3 N / 2 3 50 3 N / 2 4 50 3 E", {0, 0, 0}, {0, 0, 1}},
      {"1 2 50 3 N 1 0 1 9 / 2 3 50 3 E", {0, 0}, {0, 1}},
      {"1 2 50 3 N / 2 3 50 3 N / 2 4 50 3 N@90", {0, 0, 0}, {0, 0, 1}},
      // The far corner of a ring: alike, from a wider pipe, and with a branch.
      {ring + "5 4 50 3 N", {0, 0, 2, 0, 1}, {0, 1, 0, 0, 0}},
      {ring + "5 4 80 3 N", {0, 0, 1, 0, 1}, {0, 1, 1, 0, 0}},
      {ring + "5 4 50 3 N / 4 6 50 1 E", {0, 0, 1, 0, 1, 0}, {0, 1, 1, 0, 0, 1}},
      // Extras, which never take a count below none.
      {"1 2 50 3 N AE-1 / 2 3 50 3 E AE2 AT3 / 3 4 50 3 N AE-1", {0, 3, 0}, {0, 3, 0}}};
  for (const auto& [lines, elbows, tees] : cases) {
    SCOPED_TRACE(lines);
    Check(lines, CheckMode::kSilent);
    ASSERT_EQ(project.PipeCount, static_cast<int>(elbows.size()));
    for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
      EXPECT_EQ(project.PipeElbows[pipe], elbows.at(pipe - 1)) << pipe;
      EXPECT_EQ(project.PipeTees[pipe], tees.at(pipe - 1)) << pipe;
    }
  }
}

TEST_F(CheckFixture, ShapesAndUsesAreWarnedOf) {
  constexpr CheckMode kKeep = CheckMode::kKeepLines;
  constexpr CheckMode kCompose = CheckMode::kComposeLines;
  const struct {
    int pipe, mark;
    CheckMode mode;
    const char *lines, *warnings;
  } cases[] = {
      {1, 12, kKeep, "1 2 50 3 N / 2 3 50 3 N / 2 4 50 3 E / 2 5 50 3 W / 2 6 50 3 U",
       "Node number 2 has been used 5 times\r\n"},
      {2, 13, kCompose, "1 2 50 3 N / 2 3 50 3 N", "End node 3 used once is not a head\r\n"},
      {2, 0, kKeep, "1 2 50 3 N / 2 3 50 3 N", ""},
      {2, 0, kCompose, "1 2 50 3 N / 2 3 50 3 N HY900", ""},
      {2, 13, kCompose, "1 2 50 3 N / 2 3 25 3 N 1 3 1 9",
       "Pipe 2 3 = 25mm  Eq.len of VT 3 = 0m\r\n"},
      // The mark goes to the last dead end.
      {4, 13, kCompose, "1 2 100 3 N / 2 3 100 3 E HY900 / 2 4 100 3 N AE1 / 4 5 50 3 N 1 0 1 9",
       "Pipe 2 3 = 100mm  Eq.len of tees = 0m\r\nPipe 2 4 = 100mm  Eq.len of elbows = 0m\r\n"},
      {1, 14, kKeep, "1 2 50 3 N / 2 3 50 3 E / 2 4 50 4 *90.4@0.4",
       "2 pipes from node 2 have the same direction\r\n"},
      {1, 0, kKeep, "1 2 50 3 N / 2 3 50 3 E / 2 4 50 4 *90.4@0.5", ""},
      {2, 14, kKeep, "1 2 50 3 U 1 0 1 9 / 2 3 50 3 E@2 1 0 1 9",
       "Pipe 2 3 is fed from a vertical head\r\n"},
      {2, 0, kKeep, "1 2 50 3 U 1 0 1 9 / 2 3 50 3 E@1.9 1 0 1 9", ""},
      {1, 14, kKeep, "1 2 80 3 N 1 0 1 9", "Head at node 2 is on a 80 mm pipe\r\n"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.lines);
    Check(c.lines, c.mode);
    EXPECT_EQ(project.WarningText, c.warnings);
    EXPECT_EQ(project.WarningCount, std::ranges::count(project.WarningText, '\n'));
    EXPECT_EQ(project.PipeError[c.pipe], c.mark);
    EXPECT_TRUE(captions.empty());
  }
}

TEST_F(CheckFixture, TeeShapes) {
  // The third pipe at a node whose feed and second pipe run north.
  const std::pair<std::string, bool> branches[] = {
      {"E", true},     {"*89.5", true}, {"*89.4", false}, {"W", true},      {"*5", true},
      {"*5.1", false}, {"U", true},     {"N@5.1", false}, {"*45@90", true}, {"S", false}};
  for (const auto& [branch, is_tee] : branches) {
    Check("1 2 50 3 N / 2 3 50 3 N / 2 4 50 3 " + branch);
    EXPECT_EQ(FaultNumbers().empty(), is_tee) << branch;
  }
  // A head makes a junction of a bend.
  Check("1 2 50 3 N 1 0 1 9 / 2 3 50 3 E 1 0 1 9");
  EXPECT_EQ(FaultNumbers(), std::vector{15});
  SetItem(Item::kInstallation, "-FC -SH");
  Check("1 2 80 3 N 1 0 1 9 / 2 3 50 3 E 1 0 1 9");
  EXPECT_EQ(project.WarningCount, 0);
}

}  // namespace
}  // namespace zeb::test
