#include "calc/heads.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calc/control_head.h"
#include "calc/flow_paths.h"
#include "calc/head_balance.h"
#include "made_network.h"
#include "support/failure_of.h"

namespace zeb {
namespace {

using test::MadeNetwork;

TEST(HeadsTest, StartWhereDensityOrMinimumPressureAsks) {
  struct Case {
    const char* what;
    float k, area, density, min_press, sg;
    int restart;
    float flow, pressure;
  };
  const Case cases[] = {
      {"density", 80.0F, 12.0F, 5.0F, 0.5F, 1.0F, 0, 60.0F, 0.5625F},
      {"minimum pressure", 80.0F, 9.0F, 5.0F, 0.36F, 1.0F, 0, 48.0F, 0.36F},
      {"heavy fluid", 80.0F, 12.0F, 5.0F, 0.5F, 1.2F, 0, 60.0F, 0.675F},
      {"heavy fluid at its minimum", 80.0F, 12.0F, 5.0F, 0.7F, 1.75F, 0, 60.0F, 0.984375F},
      {"no area", 80.0F, 0.0F, 0.0F, 0.25F, 1.0F, 0, 40.0F, 0.25F},
      {"no area after a restart", 80.0F, 0.0F, 0.0F, 0.25F, 1.0F, 2, 0.0F, 0.0F},
      {"least K", 0.0F, 0.01F, 1.0F, 0.0F, 1.0F, 0, 0.01F, 1.0F},
  };
  for (const Case& c : cases) {
    Project project;
    MadeNetwork network(project);
    const int head = network.Head(network.Pipe(1, 2, 1, 1.0F), c.k, c.area, c.density, c.min_press);
    project.FluidSG = c.sg;
    project.RestartState = c.restart;
    project.DesignFlow = 100.0F;
    StartHeads(project, OperatingHeads(project));
    EXPECT_NEAR(project.HeadFlow[head], c.flow, 1e-4F) << c.what;
    EXPECT_NEAR(project.HeadPressure[head], c.pressure, 1e-5F) << c.what;
    EXPECT_EQ(project.HeadFlowChange[head], project.HeadFlow[head]) << c.what;
    EXPECT_EQ(project.HeadStartPressure[head], project.HeadPressure[head]) << c.what;
    EXPECT_NEAR(project.DesignFlow, 100.0F + c.flow, 1e-4F) << c.what;
  }
}

// Pipe 1 feeds pipes 2 and 3, pipe 3 feeds pipe 4; heads on 2 and 4, a hydrant on 3.
struct Tree {
  Tree() {
    network.Pipe(1, 2, 5, 1.0F);
    network.Pipe(2, 3, 5, 1.0F, 2.0F);
    network.Pipe(2, 4, 5, 1.0F);
    network.Pipe(4, 5, 5, 1.0F, -3.0F);
    network.Head(2, 80.0F, 12.0F, 5.0F, 0.5F);
    network.Head(4, 80.0F, 12.0F, 10.0F, 0.5F);
    project.PipeHydrant[3] = 1000.0F;
  }

  Project project;
  MadeNetwork network{project};
};

TEST(HeadsTest, FlowsGoUpThePaths) {
  Tree tree;
  tree.project.PipeFlow[1] = 7.0F;
  const std::vector<int> heads = OperatingHeads(tree.project);
  StartHeads(tree.project, heads);
  StartPipeFlows(tree.project);
  PushHeadFlowChanges(tree.project, heads);
  const float expected[] = {0.0F, 1180.0F, 60.0F, 1120.0F, 120.0F};
  for (int pipe = 1; pipe <= 4; ++pipe) EXPECT_EQ(tree.project.PipeFlow[pipe], expected[pipe]);
  EXPECT_EQ(tree.project.HeadHeight[1], 2.0F);
  EXPECT_EQ(tree.project.HeadHeight[2], -3.0F);
}

TEST(HeadsTest, OnlyPickedHeadsOperateInSelectedMode) {
  Tree tree;
  tree.project.HeadOn[2] = 1;
  EXPECT_EQ(OperatingHeads(tree.project), (std::vector{1, 2}));
  tree.project.SelectedHeadsMode = 1;
  EXPECT_EQ(OperatingHeads(tree.project), std::vector{2});
}

TEST(HeadsTest, RequiredPressureSumsThePath) {
  Tree tree;
  tree.project.HeadHeight[1] = 2.0F;
  tree.project.HeadHeight[2] = -3.0F;
  for (const int head : {1, 2}) tree.project.HeadPressure[head] = 0.5F;
  for (int pipe = 1; pipe <= 4; ++pipe) tree.project.PipeDrop[pipe] = 0.125F;
  tree.project.PipeDrop[3] = -0.25F;
  PassFigures figures;
  FindRequiredPressures(tree.project, OperatingHeads(tree.project), figures);
  EXPECT_NEAR(tree.project.HeadSourcePressure[1], 0.2F + 0.5F + 0.25F, 1e-6F);
  EXPECT_NEAR(tree.project.HeadSourcePressure[2], -0.3F + 0.5F + 0.0F, 1e-6F);
  EXPECT_EQ(figures.highest_head, 1);
  EXPECT_EQ(figures.highest_required, tree.project.HeadSourcePressure[1]);
  EXPECT_EQ(figures.lowest_required, tree.project.HeadSourcePressure[2]);
}

TEST(HeadsTest, MoveUnderRelaxationTowardsWhatTheSourceLeaves) {
  Tree tree;
  Project& project = tree.project;
  StartHeads(project, OperatingHeads(project));  // 0.5625 bar and 2.25 bar
  project.HeadSourcePressure[1] = 1.0F;
  project.HeadSourcePressure[2] = 3.0F;
  project.SourcePressure = 2.0F;
  project.Relaxation = 0.75F;
  project.FinalTol = 0.001F;
  project.PressureTol = 1.0F;
  project.Iteration = 1;
  project.ControlHead = 2;
  PassFigures figures;
  MoveHeads(project, OperatingHeads(project), figures);
  EXPECT_NEAR(project.HeadPressure[1], 0.5625F + 0.25F, 1e-6F);
  EXPECT_NEAR(project.HeadFlow[1], 80.0 * std::sqrt(0.8125), 1e-4);
  EXPECT_NEAR(project.HeadPressure[2], 1.25F, 1e-6F);  // the control head at once
  EXPECT_NEAR(project.HeadFlowChange[2], 80.0 * std::sqrt(1.25) - 120.0, 1e-4);
  EXPECT_EQ(project.PipePdError, 1.0F);
  EXPECT_EQ(figures.over_final_tol, 2);
  EXPECT_EQ(figures.over_pressure_tol, 0);  // 1.0 is not over 1.0
  EXPECT_NEAR(figures.largest_change, 30.557F, 1e-3F);
  EXPECT_EQ(figures.least_margin_head, 2);
  EXPECT_NEAR(figures.least_margin, -1.0F, 1e-6F);
  EXPECT_EQ(figures.least_density_head, 1);  // 72.1 / 12 against 89.4 / 12
  EXPECT_EQ(figures.least_density_flow_before, 60.0F);
}

// Two heads of K 80, 12 m2 and 5.0 mm/min, which need 60 L/min at 0.5625 bar; the first is at
// 1.0 bar and 80 L/min, the second at 0.5 bar and 56.57 L/min, from 70 and 58 before the pass.
TEST(ControlHeadTest, PinsTheHeadThatGoverns) {
  struct Case {
    const char* what;
    PassFigures figures;
    int curve;
    int control;
    float flow, change, pressure;  // of head 2
  };
  const float short_flow = 56.5685F;
  const Case cases[] = {
      {"pressure short, density met",
       {.over_final_tol = 1,
        .least_margin = -0.1F,
        .least_margin_head = 2,
        .least_density = 5.5F,
        .least_density_head = 1},
       0,
       2,
       60.0F,
       60.0F - short_flow,
       0.5625F},
      {"density short",
       {.over_final_tol = 1,
        .least_margin = -0.1F,
        .least_margin_head = 1,
        .least_density = 4.9F,
        .least_density_head = 2,
        .least_density_flow_before = 58.0F},
       0,
       2,
       60.0F,
       2.0F,
       0.5625F},
      {"all have too much",
       {.over_final_tol = 1,
        .least_margin = 0.1F,
        .least_margin_head = 1,
        .least_density = 5.5F,
        .least_density_head = 2,
        .least_density_flow_before = 58.0F},
       0,
       2,
       60.0F,
       2.0F,
       0.5625F},
      {"heads without area",
       {.over_final_tol = 1, .least_margin = 0.0F, .least_margin_head = 2},
       0,
       2,
       60.0F,
       60.0F - short_flow,
       0.5625F},
      {"all agree",
       {.least_margin = -0.1F,
        .least_margin_head = 1,
        .least_density = 4.9F,
        .least_density_head = 2},
       0,
       2,
       short_flow,
       short_flow - 58.0F,
       0.5F},
      {"all agree, no area",
       {.least_margin = -0.1F, .least_margin_head = 2},
       0,
       2,
       short_flow,
       short_flow - 58.0F,
       0.5F},
      {"supply curve",
       {.over_final_tol = 2,
        .least_margin = -0.1F,
        .least_margin_head = 2,
        .least_density = 5.5F,
        .least_density_head = 1},
       2,
       1,
       short_flow,
       short_flow - 58.0F,
       0.5F},
  };
  for (const Case& c : cases) {
    Tree tree;
    Project& project = tree.project;
    project.HeadDensity[2] = 5.0F;
    StartHeads(project, OperatingHeads(project));
    project.HeadPressure[2] = 0.5F;
    project.HeadFlow[2] = short_flow;
    project.HeadFlowChange[2] = short_flow - 58.0F;
    project.PumpCurveIndex = c.curve;
    ChooseControlHead(project, c.figures);
    EXPECT_EQ(project.ControlHead, c.control) << c.what;
    EXPECT_NEAR(project.HeadFlow[2], c.flow, 1e-4F) << c.what;
    EXPECT_NEAR(project.HeadFlowChange[2], c.change, 1e-4F) << c.what;
    EXPECT_NEAR(project.HeadPressure[2], c.pressure, 1e-6F) << c.what;
  }
}

TEST(FlowPathsTest, RefuseTablesInWhichAWalkWouldNotEnd) {
  Tree tree;
  tree.network.Loop({-2, 3, 4});
  EXPECT_EQ(test::FailureOf([&] { CheckFlowPaths(tree.project); }), 0);
  const auto fails = [&](auto&& row, int slot, auto value) {
    const auto before = row[slot];
    row[slot] = value;
    const int number = test::FailureOf([&] { CheckFlowPaths(tree.project); });
    row[slot] = before;
    return number == failure::kSubscriptOutOfRange;
  };
  EXPECT_TRUE(fails(tree.project.PipeUpstream, 3, 3));
  EXPECT_TRUE(fails(tree.project.PipeUpstream, 2, 4));
  EXPECT_TRUE(fails(tree.project.HeadPipe, 1, 5.0F));
  EXPECT_TRUE(fails(tree.project.LoopPipes, 1, -5));
  EXPECT_TRUE(fails(tree.project.LoopLast, 1, 4));
}

}  // namespace
}  // namespace zeb
