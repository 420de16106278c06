#include "calc/control_head.h"

#include <gtest/gtest.h>

#include "calc/flow_paths.h"
#include "calc/heads.h"
#include "made_network.h"
#include "support/failure_of.h"

namespace zeb::test {
namespace {

// Two heads of K 80, 12 m2 and 5 mm/min, which need 60 L/min at 0.5625 bar. The second is at
// 0.5 bar and 56.57 L/min, from 58 before the pass.
struct TwoHeads {
  TwoHeads() {
    for (const int node : {1, 2}) network.Head(network.Pipe(node, node + 1, 5, 1.0F), 80, 12, 5, 0);
    StartHeads(project, OperatingHeads(project));
    project.HeadPressure[2] = 0.5F;
    project.HeadFlow[2] = kFlow;
    project.HeadFlowChange[2] = kFlow - 58.0F;
  }

  static constexpr float kFlow = 56.5685F;
  Project project;
  MadeNetwork network{project};
};

TEST(ControlHeadTest, PinsTheHeadThatGoverns) {
  struct Case {
    const char* what;
    int over_tol;
    float margin;
    int margin_head;
    float density;
    int density_head, curve, control;
    float flow, change, pressure;  // of head 2
  };
  constexpr float kFlow = TwoHeads::kFlow;
  constexpr float kNone = 9999.0F;
  const Case cases[] = {
      {"pressure short", 1, -0.1F, 2, 5.5F, 1, 0, 2, 60, 60 - kFlow, 0.5625F},
      {"density short", 1, -0.1F, 1, 4.9F, 2, 0, 2, 60, 2, 0.5625F},
      {"all have too much", 1, 0.1F, 1, 5.5F, 2, 0, 2, 60, 2, 0.5625F},
      {"no areas", 1, 0, 2, kNone, 0, 0, 2, 60, 60 - kFlow, 0.5625F},
      {"all agree", 0, -0.1F, 1, 4.9F, 2, 0, 2, kFlow, kFlow - 58, 0.5F},
      {"all agree, no areas", 0, -0.1F, 2, kNone, 0, 0, 2, kFlow, kFlow - 58, 0.5F},
      {"supply curve", 2, -0.1F, 2, 5.5F, 1, 2, 1, kFlow, kFlow - 58, 0.5F},
  };
  for (const Case& c : cases) {
    TwoHeads two;
    two.project.PumpCurveIndex = c.curve;
    ChooseControlHead(two.project, {.over_final_tol = c.over_tol,
                                    .least_margin = c.margin,
                                    .least_margin_head = c.margin_head,
                                    .least_density = c.density,
                                    .least_density_head = c.density_head,
                                    .least_density_flow_before = 58.0F});
    EXPECT_EQ(two.project.ControlHead, c.control) << c.what;
    EXPECT_NEAR(two.project.HeadFlow[2], c.flow, 1e-4F) << c.what;
    EXPECT_NEAR(two.project.HeadFlowChange[2], c.change, 1e-4F) << c.what;
    EXPECT_NEAR(two.project.HeadPressure[2], c.pressure, 1e-6F) << c.what;
  }
}

TEST(FlowPathsTest, RefuseTablesInWhichAWalkWouldNotEnd) {
  TwoHeads two;
  two.network.Loop({-1, 2});
  const auto fails = [&](auto& row, int slot, auto value) {
    const auto before = row[slot];
    row[slot] = value;
    const int number = FailureOf([&] { CheckFlowPaths(two.project); });
    row[slot] = before;
    return number == failure::kSubscriptOutOfRange;
  };
  EXPECT_FALSE(fails(two.project.PipeUpstream, 2, 1));
  EXPECT_TRUE(fails(two.project.PipeUpstream, 2, 2));
  EXPECT_TRUE(fails(two.project.HeadPipe, 1, 3.0F));
  EXPECT_TRUE(fails(two.project.LoopPipes, 1, -3));
  EXPECT_TRUE(fails(two.project.LoopLast, 1, 3));
}

}  // namespace
}  // namespace zeb::test
