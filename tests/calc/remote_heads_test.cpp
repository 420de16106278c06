#include "calc/remote_heads.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

#include "calc/design_area.h"
#include "calc/four_heads.h"
#include "made_network.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

using Four = std::array<int, 4>;

// Nine heads in rows of three, 3 m apart, on 9 m2 each; slot 5 at (3, 3) is the remotest. All give
// 50 L/min but that one with 45 and slot 9 at (6, 6) with 40. Head n stands at node 10 + n.
struct NineHeads : TestSession {
  explicit NineHeads(float spacing = 3.0F) {
    MadeNetwork network(project);
    for (int head = 1; head <= 9; ++head) {
      const int pipe = network.Pipe(head == 1 ? 1 : 9 + head, 10 + head, 1, 3.0F);
      network.Head(pipe, 80.0F, 9.0F, 5.0F, 0.35F);
      project.HeadX[head] = spacing * static_cast<float>((head - 1) % 3);
      project.HeadY[head] = spacing * static_cast<float>((head - 1) / 3);
      project.HeadFlow[head] = 50.0F;
    }
    project.HeadFlow[5] = 45.0F;
    project.HeadFlow[9] = 40.0F;
    project.MaxArea = 9.0F;
    project.RemotestHead = 5;
    project.RemotestNode = 15;
    project.MrHead1 = 7;  // of an earlier calculation
    project.MrDensity = 3.0F;
  }

  Four Find() {
    SearchRemoteHeads(session);
    return {project.MrHead1, project.MrHead2, project.MrHead3, project.MrHead4};
  }
};

struct RemoteHeads : testing::Test, NineHeads {};

TEST_F(RemoteHeads, TakesTheCornerOfLeastDensity) {
  project.ZOffset = -2.0F;
  EXPECT_EQ(Find(), (Four{9, 6, 5, 8}));  // at 45, 123.7, 225 and 326.3 degrees from (4.2, 4.2)
  EXPECT_EQ(project.MrNode1, 19);
  EXPECT_EQ(project.MrNode4, 18);
  EXPECT_FLOAT_EQ(project.MrFlow, 185.0F);
  EXPECT_FLOAT_EQ(project.MrArea, 9.0F);
  EXPECT_FLOAT_EQ(project.MrDensity, 185.0F / 9.0F / 4.0F);
  EXPECT_FLOAT_EQ(project.MrRequiredDensity, 5.0F);
  EXPECT_FLOAT_EQ(project.MrAreaAverage, 9.0F);
  EXPECT_EQ(project.LeastDensityHead, 9);
  EXPECT_EQ(project.RemotestHead, 9);
  EXPECT_EQ(project.RemotestNode, 19);
  EXPECT_EQ(project.ZOffset, 0.0F);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(RemoteHeads, GoesAroundTheHeadThatTheUserChose) {
  project.ChosenMrHead = 1;
  EXPECT_EQ(Find(), (Four{5, 2, 1, 4}));
  EXPECT_FLOAT_EQ(project.MrFlow, 195.0F);
  EXPECT_EQ(project.RemotestHead, 5);
}

using Changes = std::pair<const char*, void (*)(Project&)>;

TEST(RemoteHeadsTest, LeavesOutHeadsThatAreOffAndAddedBuildings) {
  const Changes cases[] = {{"off",
                            [](Project& p) {
                              p.SelectedHeadsMode = 1;
                              p.SelectedHeadCount = 8;
                              for (int head = 1; head <= 8; ++head) p.HeadOn[head] = 1;
                            }},
                           {"building", [](Project& p) { p.HeadCode[9] = -1.0F; }},
                           {"no area", [](Project& p) { p.HeadArea[9] = 0.4F; }}};
  for (const auto& [what, change] : cases) {
    NineHeads t;
    change(t.project);
    EXPECT_EQ(std::ranges::count(t.Find(), 9), 0) << what;
    EXPECT_GT(t.project.MrDensity, 0.0F) << what;
  }
}

TEST(RemoteHeadsTest, IsSkippedWithoutForgettingTheRemotestHead) {
  const Changes cases[] = {
      {"residential", [](Project& p) { ItemText(p, Item::kAuthority) = "BS 9251 : Homes"; }},
      {"option", [](Project& p) { ItemText(p, Item::kInstallation) = "1 -4mrh"; }},
      {"three heads", [](Project& p) { p.HeadCount = 3; }},
      {"NFPA", [](Project& p) { p.RuleType = 2; }},
      {"FM", [](Project& p) { p.RuleType = 3; }},
      {"three picked", [](Project& p) { p.SelectedHeadsMode = 1, p.SelectedHeadCount = 3; }},
      {"building in the middle", [](Project& p) { p.HeadCode[5] = -1.0F; }},
      {"not wanted", [](Project& p) { p.MrNodeText = " 0"; }}};
  for (const auto& [what, change] : cases) {
    NineHeads t;
    change(t.project);
    EXPECT_EQ(t.Find(), Four{}) << what;
    EXPECT_EQ(t.project.MrDensity, 0.0F) << what;
    EXPECT_EQ(t.project.RemotestHead, 5) << what;
  }
}

TEST(RemoteHeadsTest, FindsNothingAmongHeadsTooFarApartOrTooClose) {
  for (const float spacing : {10.0F, 0.33F}) {
    NineHeads t(spacing);
    EXPECT_EQ(t.Find(), Four{}) << spacing;
    EXPECT_EQ(t.project.RemotestHead, 0) << spacing;
    EXPECT_EQ(t.project.RemotestNode, 15) << spacing;
  }
}

TEST_F(RemoteHeads, TellsWhenTheSearchFails) {
  project.RemotestHead = kLastHead + 1;
  Find();
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text, "Cannot determine 4 remotest heads");
}

TEST_F(RemoteHeads, WarnsOfLowDensity) {
  for (int head = 1; head <= 9; ++head) project.HeadDensity[head] = 5.25F;
  Find();
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].title,
            "Actual density of coverage is 5.14 mm/min over 4 most remotest heads");
  EXPECT_TRUE(dialogs.messages[0].text.starts_with(
      "Total area of head node numbers 19 16 15 18 divided by 4 only comes to 9.000 sq.m. but is "
      "actually 9.000 sq.m in plan view and so the density over the four most remotest heads is "
      "5.14 mm/min and not the 5.25 mm/min specified.\r\n"
      "Check you have the right lengths"))
      << dialogs.messages[0].text;
}

// Four heads 2 m north, south, east and west of a point. At the edge of the radius a head counts.
struct Diamond {
  Diamond(float x, float y) {
    MadeNetwork network(project);
    constexpr std::array<std::array<float, 2>, 4> kSides{{{0, 2}, {0, -2}, {2, 0}, {-2, 0}}};
    for (const auto& side : kSides) {
      const int head = network.Head(network.Pipe(1, 2 + project.PipeCount, 1, 1.0F), 80, 9, 5, 0);
      project.HeadX[head] = x + side[0];
      project.HeadY[head] = y + side[1];
      project.HeadFlow[head] = 40.0F;
    }
    found = FourHeadSearch(project, 2.0F).Around(x, y).value();
  }

  Project project;
  FourHeads found;
};

TEST(FourHeadSearchTest, OrdersHeadsByBearing) {
  const Diamond diamond(5.0F, 5.0F);
  EXPECT_EQ(diamond.found.heads, (Four{1, 3, 2, 4}));
  EXPECT_FLOAT_EQ(diamond.found.area, 8.0F);
  EXPECT_FLOAT_EQ(diamond.found.density, 160.0F / 8.0F / 4.0F);
  EXPECT_FALSE(FourHeadSearch(diamond.project, 1.99F).Around(5.0F, 5.0F));

  // On the drawing's edge due east and due west are not told apart, and the lines cross.
  const Diamond at_edge(0.0F, 5.0F);
  EXPECT_EQ(at_edge.found.heads, (Four{1, 2, 3, 4}));
  EXPECT_EQ(at_edge.found.density, kNoDensity);
}

// A range of DN 40, pipes 2 to 5, between two mains, with the head at the end of pipe 3; pipe 7
// drops from there with the head's flow.
struct DesignArea : testing::Test {
  DesignArea() {
    MadeNetwork network(project);
    const struct {
      int start, end, size;
      float flow;
    } pipes[] = {{1, 2, 4, 400},  {2, 3, 2, 150},  {3, 4, 2, 90}, {4, 5, 2, -60},
                 {5, 6, 2, -120}, {6, 7, 4, -250}, {4, 8, 1, 50}};
    for (const auto& pipe : pipes) {
      project.PipeFlow[network.Pipe(pipe.start, pipe.end, pipe.size, 3.0F)] = pipe.flow;
    }
    network.Head(3, 80, 9, 5, 0);
    project.HeadFlow[1] = 50.0F;
    project.RemotestHead = 1;
    for (int loop = 1; loop <= 4; ++loop) network.Loop({-5, -4, -3, 6});
  }

  Project project;
};

TEST_F(DesignArea, FindsTheFlowsAtBothEndsOfTheRange) {
  const struct {
    const char* what;
    int loops, head_pipe, pipe_in_loop;
    float flow_a, flow_b;
  } cases[] = {{"on the range", 4, 3, 5, 150, 120},
               {"below the range, in a loop", 4, 7, 7, 150, 120},
               {"below the range, in no loop", 4, 7, 5, 0, 0},
               {"too few loops", 3, 3, 5, 0, 0}};
  for (const auto& c : cases) {
    project.AmaoFlowA = project.AmaoFlowB = project.AmaoDifference = 0.0F;
    project.LoopCount = c.loops;
    project.HeadPipe[1] = static_cast<float>(c.head_pipe);
    project.LoopPipes[1] = c.pipe_in_loop;
    FindDesignAreaFlows(project, 1);
    EXPECT_EQ(project.AmaoFlowA, c.flow_a) << c.what;
    EXPECT_EQ(project.AmaoFlowB, c.flow_b) << c.what;
    EXPECT_EQ(project.AmaoDifference, c.flow_a - c.flow_b) << c.what;
  }
}

TEST_F(DesignArea, GradesTheDifference) {
  const std::pair<float, const char*> cases[] = {
      {15.0F, "This is certainly the correct AMAO"},
      {15.01F, "This may not be the right AMAO - try moving heads"},
      {29.99F, "This may not be the right AMAO - try moving heads"},
      {30.0F, ""},
      {30.01F, "Unlikely to be the right AMAO - try moving heads"}};
  for (const auto& [difference, grade] : cases) {
    project.AmaoDifference = difference;
    EXPECT_EQ(DesignAreaGrade(project), grade) << difference;
  }
}

}  // namespace
}  // namespace zeb::test
