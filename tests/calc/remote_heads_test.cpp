#include "calc/remote_heads.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <set>
#include <string>

#include "calc/design_area.h"
#include "calc/four_heads.h"
#include "made_network.h"
#include "support/test_session.h"

namespace zeb {
namespace {

using test::MadeNetwork;
using test::TestSession;

// Nine heads in rows of three, 3 m apart, on 9 m2 each; slot 5 at (3, 3) is the remotest. All give
// 50 L/min but the middle one with 45 and slot 9 at (6, 6) with 40. Head n ends pipe n at node
// 10 + n.
struct NineHeads : TestSession {
  NineHeads() {
    MadeNetwork network(project);
    for (int head = 1; head <= 9; ++head) {
      network.Head(network.Pipe(head == 1 ? 1 : 9 + head, 10 + head, 1, 3.0F), 80.0F, 9.0F, 5.0F,
                   0.35F);
      project.HeadX[head] = 3.0F * static_cast<float>((head - 1) % 3);
      project.HeadY[head] = 3.0F * static_cast<float>((head - 1) / 3);
      project.HeadFlow[head] = 50.0F;
    }
    project.HeadFlow[5] = 45.0F;
    project.HeadFlow[9] = 40.0F;
    project.MaxArea = 9.0F;
    project.RemotestHead = 5;
    project.RemotestNode = 15;
    project.ZOffset = -2.0F;
    ItemText(project, Item::kAuthority) = "EN 12845 Rules";
  }

  [[nodiscard]] std::array<int, 4> Found() const {
    return {project.MrHead1, project.MrHead2, project.MrHead3, project.MrHead4};
  }

  Project& project = session.project;
};

constexpr std::array<int, 4> kNone{};

TEST(RemoteHeadsTest, TakesTheCornerOfLeastDensity) {
  NineHeads t;
  SearchRemoteHeads(t.session);
  // Seen from (4.2, 4.2): bearings 45, 123.7, 225 and 326.3 degrees.
  EXPECT_EQ(t.Found(), (std::array{9, 6, 5, 8}));
  EXPECT_EQ(t.project.MrNode1, 19);
  EXPECT_EQ(t.project.MrNode4, 18);
  EXPECT_FLOAT_EQ(t.project.MrFlow, 185.0F);
  EXPECT_FLOAT_EQ(t.project.MrArea, 9.0F);
  EXPECT_FLOAT_EQ(t.project.MrDensity, 185.0F / 9.0F / 4.0F);
  EXPECT_FLOAT_EQ(t.project.MrRequiredDensity, 5.0F);
  EXPECT_FLOAT_EQ(t.project.MrAreaAverage, 9.0F);
  EXPECT_EQ(t.project.LeastDensityHead, 9);
  EXPECT_EQ(t.project.RemotestHead, 9);
  EXPECT_EQ(t.project.RemotestNode, 19);
  EXPECT_EQ(t.project.ZOffset, 0.0F);
  EXPECT_EQ(t.shell.panels[Panel::kHint], "Searching for 4 most remote heads");
  EXPECT_TRUE(t.dialogs.messages.empty());
}

TEST(RemoteHeadsTest, GoesAroundTheHeadThatTheUserChose) {
  NineHeads t;
  t.project.ChosenMrHead = 1;
  SearchRemoteHeads(t.session);
  // Only the corner toward the middle has four heads, the others see slots 1, 2, 4 and 5 too.
  EXPECT_EQ(t.Found(), (std::array{5, 2, 1, 4}));
  EXPECT_FLOAT_EQ(t.project.MrFlow, 195.0F);
  EXPECT_EQ(t.project.RemotestHead, 5);
}

TEST(RemoteHeadsTest, LeavesOutHeadsThatAreOffAndAddedBuildings) {
  const struct {
    const char* what;
    std::function<void(Project&)> set;
  } cases[] = {
      {"off",
       [](Project& p) {
         p.SelectedHeadsMode = 1;
         for (int head = 1; head <= 8; ++head) p.HeadOn[head] = 1;
         p.SelectedHeadCount = 8;
       }},
      {"building", [](Project& p) { p.HeadCode[9] = -1.0F; }},
      {"no area", [](Project& p) { p.HeadArea[9] = 0.4F; }},
  };
  for (const auto& c : cases) {
    NineHeads t;
    c.set(t.project);
    SearchRemoteHeads(t.session);
    const std::array<int, 4> found = t.Found();
    EXPECT_FALSE(std::set<int>(found.begin(), found.end()).contains(9)) << c.what;
    EXPECT_GT(t.project.MrDensity, 0.0F) << c.what;
  }
}

TEST(RemoteHeadsTest, IsSkippedWithoutForgettingTheRemotestHead) {
  const struct {
    const char* what;
    std::function<void(Project&)> set;
  } cases[] = {
      {"residential rules",
       [](Project& p) { ItemText(p, Item::kAuthority) = "BS 9251 : Residential"; }},
      {"option", [](Project& p) { ItemText(p, Item::kInstallation) = "1 -4mrh"; }},
      {"three heads", [](Project& p) { p.HeadCount = 3; }},
      {"NFPA", [](Project& p) { p.RuleType = 2; }},
      {"FM", [](Project& p) { p.RuleType = 3; }},
      {"three picked",
       [](Project& p) {
         p.SelectedHeadsMode = 1;
         p.SelectedHeadCount = 3;
       }},
      {"building in the middle", [](Project& p) { p.HeadCode[5] = -1.0F; }},
      {"not wanted", [](Project& p) { p.MrNodeText = " 0"; }},
  };
  for (const auto& c : cases) {
    NineHeads t;
    t.project.MrHead1 = 7;
    t.project.MrDensity = 3.0F;
    c.set(t.project);
    SearchRemoteHeads(t.session);
    EXPECT_EQ(t.Found(), kNone) << c.what;
    EXPECT_EQ(t.project.MrDensity, 0.0F) << c.what;
    EXPECT_EQ(t.project.RemotestHead, 5) << c.what;
    EXPECT_EQ(t.project.RemotestNode, 15) << c.what;
  }
}

TEST(RemoteHeadsTest, FindsNothingAmongHeadsTooFarApartOrTooClose) {
  for (const float spacing : {10.0F, 0.33F}) {
    NineHeads t;
    for (int head = 1; head <= 9; ++head) {
      t.project.HeadX[head] *= spacing / 3.0F;
      t.project.HeadY[head] *= spacing / 3.0F;
    }
    SearchRemoteHeads(t.session);
    EXPECT_EQ(t.Found(), kNone) << spacing;
    EXPECT_EQ(t.project.RemotestHead, 0) << spacing;
    EXPECT_EQ(t.project.RemotestNode, 15) << spacing;
  }
}

TEST(RemoteHeadsTest, TellsWhenTheSearchFails) {
  NineHeads t;
  t.project.RemotestHead = kLastHead + 1;
  SearchRemoteHeads(t.session);
  ASSERT_EQ(t.dialogs.messages.size(), 1U);
  EXPECT_EQ(t.dialogs.messages[0].title, "MRHEADS - Remote Head Calculation ");
  EXPECT_EQ(t.dialogs.messages[0].text, "Cannot determine 4 remotest heads");
}

TEST(RemoteHeadsTest, WarnsOfLowDensity) {
  NineHeads t;
  for (int head = 1; head <= 9; ++head) t.project.HeadDensity[head] = 5.25F;
  SearchRemoteHeads(t.session);
  ASSERT_EQ(t.dialogs.messages.size(), 1U);
  EXPECT_EQ(t.dialogs.messages[0].title,
            "Actual density of coverage is 5.14 mm/min over 4 most remotest heads");
  EXPECT_EQ(
      t.dialogs.messages[0].text,
      "Total area of head node numbers 19 16 15 18 divided by 4 only comes to 9.000 sq.m. but is "
      "actually 9.000 sq.m in plan view and so the density over the four most remotest heads is "
      "5.14 mm/min and not the 5.25 mm/min specified.\r\n"
      "Check you have the right lengths / directions of the pipes supplying these heads.\r\n"
      "Then check you have the right head areas specified - the program cannot calculate these as "
      "it does not know where the walls / partitions / obstructions etc are and so relies on you "
      "to enter the correct values.\r\n"
      "You may need to adjust the density of 5.25 mm/min specified to allow for the insufficient "
      "water over one or more of these heads because they cover a smaller area than the rest. Try "
      "increasing the density question (under 'Edit' 'Design Area') value by (say) 0.1 mm/min and "
      "then recalculating.\r\n"
      "You will still get this warning message but should check that the actual density of 5.14 "
      "mm/min exceeds the density you really want.");
}

// Four heads 2 m from a point, slot order north, south, east, west.
struct Diamond {
  explicit Diamond(float x, float y) {
    MadeNetwork network(project);
    constexpr std::array<std::array<float, 2>, 4> kSides{{{0, 2}, {0, -2}, {2, 0}, {-2, 0}}};
    for (const auto& side : kSides) {
      const int head = network.Head(network.Pipe(1, 2 + project.PipeCount, 1, 1.0F), 80, 9, 5, 0);
      project.HeadX[head] = x + side[0];
      project.HeadY[head] = y + side[1];
      project.HeadFlow[head] = 40.0F;
    }
  }

  Project project;
};

TEST(FourHeadSearchTest, OrdersHeadsByBearing) {
  Diamond diamond(5.0F, 5.0F);
  // At the edge of the radius a head still counts.
  const auto four = FourHeadSearch(diamond.project, 2.0F).Around(5.0F, 5.0F);
  ASSERT_TRUE(four);
  EXPECT_EQ(four->heads, (std::array{1, 3, 2, 4}));
  EXPECT_FLOAT_EQ(four->area, 8.0F);
  EXPECT_FLOAT_EQ(four->density, 160.0F / 8.0F / 4.0F);
  EXPECT_FALSE(FourHeadSearch(diamond.project, 1.99F).Around(5.0F, 5.0F));
}

// On the drawing's edge due east and due west cannot be told apart: the lines cross.
TEST(FourHeadSearchTest, LosesEastAndWestAtZero) {
  Diamond diamond(0.0F, 5.0F);
  const auto four = FourHeadSearch(diamond.project, 3.0F).Around(0.0F, 5.0F);
  ASSERT_TRUE(four);
  EXPECT_EQ(four->heads, (std::array{1, 2, 3, 4}));
  EXPECT_FLOAT_EQ(four->area, 0.0F);
  EXPECT_EQ(four->density, kNoDensity);
}

// A main of DN 80 and a range of DN 40 that is fed from both ends, with the head at its middle:
// pipe
// 3. Pipe 7 drops from there.
struct Range {
  Range() {
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
    for (int loop = 1; loop <= 4; ++loop) network.Loop({-5, -4, -3, 6});
    ItemText(project, Item::kAreaReference) = "Most Unfavourable";
    project.RemotestHead = 1;
  }

  Project project;
};

TEST(DesignAreaTest, FindsTheFlowsAtBothEndsOfTheRange) {
  Range range;
  FindDesignAreaFlows(range.project, 1);
  EXPECT_FLOAT_EQ(range.project.AmaoFlowA, 150.0F);
  EXPECT_FLOAT_EQ(range.project.AmaoFlowB, 120.0F);
  EXPECT_FLOAT_EQ(range.project.AmaoDifference, 30.0F);
  EXPECT_TRUE(HasDesignAreaGrade(range.project));
}

TEST(DesignAreaTest, NeedsAGridWithTheHeadInALoop) {
  Range three_loops;
  three_loops.project.LoopCount = 3;
  FindDesignAreaFlows(three_loops.project, 1);
  EXPECT_EQ(three_loops.project.AmaoFlowA, 0.0F);

  Range drop;
  drop.project.HeadPipe[1] = 7.0F;
  FindDesignAreaFlows(drop.project, 1);
  EXPECT_EQ(drop.project.AmaoFlowA, 0.0F);

  drop.project.LoopPipes[1] = 7;  // its flow is the head's: the range begins above it
  FindDesignAreaFlows(drop.project, 1);
  EXPECT_FLOAT_EQ(drop.project.AmaoFlowA, 150.0F);
  EXPECT_FLOAT_EQ(drop.project.AmaoFlowB, 120.0F);
}

TEST(DesignAreaTest, GradesTheDifference) {
  const std::string right = "This is certainly the correct AMAO";
  const std::string doubtful = "This may not be the right AMAO - try moving heads";
  const std::string wrong = "Unlikely to be the right AMAO - try moving heads";
  const struct {
    float difference;
    std::string grade;
  } cases[] = {{0.0F, right},      {15.0F, right}, {15.01F, doubtful},
               {29.99F, doubtful}, {30.0F, ""},    {30.01F, wrong}};
  Range range;
  for (const auto& c : cases) {
    range.project.AmaoDifference = c.difference;
    EXPECT_EQ(DesignAreaGrade(range.project), c.grade) << c.difference;
  }
}

}  // namespace
}  // namespace zeb
