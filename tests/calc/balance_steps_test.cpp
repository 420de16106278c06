// The steps of the balance, each on its own.
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>

#include "calc/control_head.h"
#include "calc/flow_paths.h"
#include "calc/heads.h"
#include "calc/loop_balance.h"
#include "calc/node_pressures.h"
#include "calc/pressure_loss.h"
#include "calc/supply_curve.h"
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

// Three ways of 10 m in DN 50 from node 2 to node 3, the last with an added drop of 0.1 bar; a loop
// of the first two, one of the last two, and one that stands still. One sweep by the step of the
// method: the second loop sees what the first has changed in the pipe that they share.
TEST(LoopBalanceTest, CorrectsLoopAfterLoop) {
  Project project;
  MadeNetwork network(project);
  network.Pipe(1, 2, 5, 1.0F);
  for (const float flow : {400.0F, 200.0F, 100.0F, 0.0F}) {
    const int pipe = network.Pipe(2, 3, 3, 10.0F);
    project.PipeFlow[pipe] = flow;
    project.PipePressDrop[pipe] = pipe == 4 ? 0.1F : 0.0F;
    EquivalentLength(project, pipe, 3);
    PipeDropFromFlow(project, pipe);
  }
  network.Loop({-2, 3});
  network.Loop({-3, 4});
  network.Loop({5});
  project.LoopFactor = 1.06F;
  project.PressureTol = 100.0F;
  const auto loss = [](double flow) { return LossOf(flow, 53.1, 10.0); };
  const auto step = [&](double against, double with, double added) {
    const double ratio = loss(against) / against + (loss(with) + added) / with;
    return 1.06 * (loss(with) + added - loss(against)) / 1.85 / ratio;
  };
  const double first = step(400.0, 200.0, 0.0);
  const double second = step(200.0 - first, 100.0, 0.1);
  BalanceLoops(project);
  EXPECT_NEAR(project.PipeFlow[2], 400.0 + first, 1e-3);
  EXPECT_NEAR(project.PipeFlow[3], 200.0 - first + second, 1e-3);
  EXPECT_NEAR(project.PipeFlow[4], 100.0 - second, 1e-3);
  EXPECT_EQ(project.PipeFlow[5], 0.0F);
  EXPECT_NEAR(project.LoopError, loss(400.0) - loss(200.0), 1e-5);
}

// Feed to node 2, a ring 2-3-4-2 of which pipe 4 closes at node 3 and flows backward, a riser of
// 5 m from node 4, a pipe without flow behind it, one written towards the riser, and one apart.
TEST(NodePressuresTest, SpreadFromTheSource) {
  struct Pipe {
    int start, end;
    float rise, flow, drop;
  };
  const Pipe pipes[] = {{1, 2, 1, 300, 0.4F},   {2, 3, 0, 200, 0.2F}, {2, 4, 0, 100, 0.25F},
                        {4, 3, 0, -50, -0.05F}, {4, 5, 5, 150, 0.1F}, {5, 6, -2, 0, 0},
                        {7, 5, 4, -10, -0.3F},  {9, 8, 0, 0, 0}};
  const float nodes[] = {0,     4,     3.5F,  3.3F,           3.25F,
                         2.65F, 2.85F, 2.75F, kUnsetPressure, kUnsetPressure};
  Project project;
  MadeNetwork network(project);
  for (const Pipe& p : pipes) {
    const int pipe = network.Pipe(p.start, p.end, 5, 10.0F, p.rise);
    project.PipeFlow[pipe] = p.flow;
    project.PipeDrop[pipe] = p.drop;
  }
  project.SourcePressure = 4.0F;
  ClearNodePressures(project);
  SpreadNodePressures(project);
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    EXPECT_NEAR(project.PipeStartPressure[pipe], nodes[project.PipeStartNode[pipe]], 1e-5F) << pipe;
    EXPECT_NEAR(project.PipeEndPressure[pipe], nodes[project.PipeEndNode[pipe]], 1e-5F) << pipe;
  }
}

TEST(SupplyCurveTest, SelectsByName) {
  Project project;
  MadeNetwork network(project);
  network.Supply({0.0F, 6.0F, 1000.0F, 4.0F});
  project.SupplyCount = 4;
  project.SupplyNames[3] = "nonesuch main";
  project.SupplyTable[3] = project.SupplyTable[2];
  project.SupplyNames[4] = "Low";
  project.SupplyTable[4] = {0.0F, 0.5F};
  const std::pair<std::string, int> cases[] = {
      {" Pump", 2}, {"None", 0}, {"pump", 0}, {"nonesuch main", 0}, {"Low", 0}};
  for (const auto& [text, row] : cases) {
    ItemText(project, Item::kSupply) = text;
    SelectSupply(project);
    EXPECT_EQ(project.PumpCurveIndex, row) << text;
  }
  // Without a match row 1 is in force, whatever it is.
  project.SupplyNames[1] = "Town main";
  project.SupplyTable[1] = project.SupplyTable[2];
  ItemText(project, Item::kSupply) = "None";
  SelectSupply(project);
  EXPECT_EQ(project.PumpCurveIndex, 1);
}

TEST(SupplyCurveTest, ReadsThePressureOffTheCurve) {
  Project project;
  MadeNetwork network(project);
  network.Supply({0.0F, 6.0F, 300.0F, 5.75F, 1000.0F, 5.0F, 1200.0F, 0.0F}, 5.0F);
  project.SupplyTable[2][15] = 0.7F;  // of the last point, which stands for all flows beyond
  SelectSupply(project);
  const std::tuple<const char*, float, float, int> cases[] = {
      {"no flow", 0.0F, 6.0F, 0},          {"between points", 650.0F, 5.375F, 0},
      {"on a point", 1000.0F, 5.0F, 0},    {"near the end", 1160.0F, 1.0F, 0},
      {"under 0.1 bar", 1197.0F, 0.7F, 1}, {"behind the end", 1200.1F, 0.7F, 1},
      {"backward", -200.0F, 6.166667F, 0}};
  for (const auto& [what, flow, pressure, off] : cases) {
    project.OffCurve = 0;
    EXPECT_NEAR(SupplyPressureAt(project, flow), pressure + 0.5F, 1e-4F) << what;
    EXPECT_EQ(project.OffCurve, off) << what;
  }
}

}  // namespace
}  // namespace zeb::test
