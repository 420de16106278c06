#include "check/loop_closing.h"
#include "check_fixture.h"

namespace zeb::test {
namespace {

constexpr float kNear = 1E-4F;  // m and degrees

struct Geometry : CheckFixture {
  void ExpectEnd(int pipe, float x, float y, float z) {
    SCOPED_TRACE(pipe);
    EXPECT_NEAR(project.PipeX[pipe], x, kNear);
    EXPECT_NEAR(project.PipeY[pipe], y, kNear);
    EXPECT_NEAR(project.PipeZ[pipe], z, kNear);
  }
};

TEST_F(Geometry, PipesFollowTheirFeed) {
  Check("1 2 50 4 N / 2 3 50 3 E / 2 4 50 2 U / 4 5 50 3 SE@60 / 3 6 50 2 *30@30");
  ExpectEnd(1, 0, 4, 0);
  ExpectEnd(2, 3, 4, 0);
  ExpectEnd(3, 0, 4, 2);
  // Above 45 degrees the length is the rise: 3 up, 3 tan 30 = 1.7321 along.
  ExpectEnd(4, 1.2247F, 2.7753F, 5);
  EXPECT_NEAR(project.PipeLength[4], 3.4641F, kNear);
  EXPECT_EQ(project.PipeLengthIn[4], 3.0F);
  EXPECT_EQ(project.PipeFlow[4], 60.0F);
  // Up to 45 degrees it is the plan length: 1 east, 1.7321 north, 2 tan 30 = 1.1547 up.
  ExpectEnd(5, 4, 5.7321F, 1.1547F);
  EXPECT_EQ(project.PipePrevious[5], 2);
  EXPECT_EQ(project.PipeUpstream[5], 2);
  EXPECT_EQ(project.PipeUpstream[1], 0);
}

TEST_F(Geometry, ANetworkBelowTheOriginIsMovedWithItsSource) {
  Check("1 2 50 4 S / 2 3 50 3 W / 3 4 50 2 D 1 0 1 9");
  ExpectEnd(0, 3, 4, 2);
  ExpectEnd(1, 3, 0, 2);
  ExpectEnd(2, 0, 0, 2);
  ExpectEnd(3, 0, 0, 0);
  EXPECT_EQ(project.ZOffset, -2.0F);
  EXPECT_NEAR(project.MaxX, 3, kNear);
  EXPECT_NEAR(project.MaxY, 4, kNear);
  EXPECT_NEAR(project.MaxZ, 2, kNear);
  EXPECT_EQ(project.MinX, 0.0F);
  EXPECT_EQ(project.MinHeadHeight, -2.0F);
  EXPECT_EQ(project.HeadX[1], project.PipeX[3] + 0.001F);
  EXPECT_EQ(project.HeadY[1], project.PipeY[3] + 0.001F);

  Check("1 2 50 4 S / 2 3 50 3 U");
  EXPECT_EQ(project.ZOffset, 0.0F);
}

TEST_F(Geometry, SwingJointsCorrectLengths) {
  const struct {
    std::string options, first, second;
    float first_rise, first_length, second_rise, second_length;
  } cases[] = {// Back over a riser: plan 4 + 3 tan 30 = 5.7321, rise 5.7321 tan 30.
               {"1", "N@60", "S@30", 3, 3.4641F, 3.3094F, 6.6188F},
               {"-LC", "N@60", "S@30", 3, 3.4641F, 2.3094F, 4.6188F},
               // Straight on: the same.
               {"1", "N@60", "N@30", 3, 3.4641F, 3.3094F, 6.6188F},
               {"-LC", "N@60", "N@30", 3, 3.4641F, 2.3094F, 4.6188F},
               // No joint: the slopes are no right angle.
               {"1", "N@60", "N@32", 3, 3.4641F, 2.4995F, 4.7167F},
               {"1", "N@60", "S@31", 3, 3.4641F, 2.4034F, 4.6665F},
               // Up behind a falling pipe: its plan 3 - 4 tan 30 = 0.6906, its rise 0.6906 tan -30.
               {"+WR", "N@-30", "N@60", -0.3987F, 0.7974F, 4, 4.6188F},
               {"1", "N@-30", "N@60", -1.7321F, 3.4641F, 4, 4.6188F},
               {"+WR -LC", "N@-30", "N@60", -1.7321F, 3.4641F, 4, 4.6188F},
               // Down and back behind a rising pipe.
               {"+WR", "N@30", "S@-60", 0.3987F, 0.7974F, -4, 4.6188F}};
  for (const auto& joint : cases) {
    SCOPED_TRACE(joint.options + " " + joint.first + " " + joint.second);
    SetItem(Item::kInstallation, joint.options);
    Check("1 2 50 3 " + joint.first + " / 2 3 50 4 " + joint.second);
    EXPECT_NEAR(project.PipeRise[1], joint.first_rise, kNear);
    EXPECT_NEAR(project.PipeLength[1], joint.first_length, kNear);
    EXPECT_NEAR(project.PipeRise[2], joint.second_rise, kNear);
    EXPECT_NEAR(project.PipeLength[2], joint.second_length, kNear);
    EXPECT_NEAR(project.PipeZ[2] - project.PipeZ[1], joint.second_rise, kNear);
  }
}

TEST_F(Geometry, ClosingLinesPointInEveryDirection) {
  const struct {
    float dx, dy, dz, direction, slope, distance;
  } cases[] = {
      {3, 4, 0, 36.8699F, 0, 5},   {3, -4, 0, 143.1301F, 0, 5}, {-3, -4, 0, 216.8699F, 0, 5},
      {-3, 4, 0, 323.1301F, 0, 5}, {0, 4, 0, 0, 0, 4},          {-0.001F, 4, 0, 0, 0, 4},
      {5, 0.01F, 0, 90, 0, 5},     {-5, -0.01F, 0, 270, 0, 5},  {0, 0, 2, 999, 0, 2},
      {0.01F, 0, -2, -999, 0, 2},  {0, 0, 0, 999, 0, 0.01F},    {4, 3, 5, 53.1301F, 45, 5},
      {5, 0.02F, -5, 77, -45, 5}};  // at 0.02 m the entered direction stays
  for (const auto& closing : cases) {
    project.PipeX[2] = closing.dx;
    project.PipeY[2] = closing.dy;
    project.PipeZ[2] = closing.dz;
    const ClosingLine line = LineBetween(project, 1, 2, 77);
    EXPECT_NEAR(line.direction, closing.direction, kNear);
    EXPECT_NEAR(line.slope, closing.slope, 10 * kNear);
    EXPECT_NEAR(line.distance, closing.distance, kNear);
  }
}

TEST_F(Geometry, AClosingPipeTakesTheLineBetweenItsEnds) {
  // The first way to node 3 rises 4 tan 0.5 = 0.0349 m; the closing pipe must rise as much.
  const std::string ring = "1 2 50 4 E / 2 3 50 4 N@0.5 / 2 4 50 4 E / 4 5 50 4 N / ";
  Check(ring + "5 3 50 4.05 W");
  EXPECT_TRUE(project.Faults.empty());
  EXPECT_EQ(project.PipeLoopClose[5], 2);
  EXPECT_NEAR(project.PipeDirection[5], 270, kNear);
  EXPECT_NEAR(project.PipeSlope[5], 0.5F, kNear);
  EXPECT_NEAR(project.PipeRise[5], 0.0353F, kNear);  // of the entered length
  EXPECT_EQ(project.PipeLengthIn[5], 4.05F);
  ExpectEnd(5, 3.95F, 4, 0.0353F);

  // Off by 2 degrees, by 0.2 m, and by 2 degrees of slope.
  for (const char* closing : {"5 3 50 4 *268", "5 3 50 4.2 W", "5 3 50 4 W@2.5"}) {
    Check(ring + closing);
    EXPECT_EQ(FaultNumbers(), std::vector{9}) << closing;
    EXPECT_NEAR(project.PipeDirection[5], 270, kNear);
    EXPECT_NEAR(project.PipeSlope[5], 0.5F, kNear);
  }
}

}  // namespace
}  // namespace zeb::test
