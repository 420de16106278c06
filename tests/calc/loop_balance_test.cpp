#include "calc/loop_balance.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calc/pressure_loss.h"
#include "made_network.h"

namespace zeb {
namespace {

using test::MadeNetwork;

void SetFlow(Project& project, int pipe, float flow) {
  EquivalentLength(project, pipe, project.PipeSizeIndex[pipe]);
  project.PipeFlow[pipe] = flow;
  PipeDropFromFlow(project, pipe);
}

// A feed to node 2, from where pipe 2 and the pair of pipes 3 and 4 both lead to node 3; the loop
// runs against pipe 2.
struct Ring {
  Ring(float length, float pair_length) {
    network.Pipe(1, 2, 5, 1.0F);
    network.Pipe(2, 3, 3, length);
    network.Pipe(2, 4, 3, pair_length / 2.0F);
    network.Pipe(4, 3, 3, pair_length / 2.0F);
    network.Loop({-2, 3, 4});
    project.PressureTol = 0.001F;
    project.LoopFactor = 1.03F;
  }

  Project project;
  MadeNetwork network{project};
};

// Between two nodes, flows share as the lengths to the power of -1/1.85.
TEST(LoopBalanceTest, SplitsAFlowBetweenTwoWays) {
  Ring ring(10.0F, 40.0F);
  SetFlow(ring.project, 2, 0.0F);
  SetFlow(ring.project, 3, 600.0F);
  SetFlow(ring.project, 4, 600.0F);
  BalanceLoops(ring.project);
  const double share = 1.0 / (1.0 + std::pow(4.0, -1.0 / 1.85));
  EXPECT_NEAR(ring.project.PipeFlow[2], 600.0 * share, 0.1);
  EXPECT_NEAR(ring.project.PipeFlow[2] + ring.project.PipeFlow[3], 600.0F, 1e-3F);
  EXPECT_EQ(ring.project.PipeFlow[3], ring.project.PipeFlow[4]);
  EXPECT_LE(ring.project.LoopError, 0.00025F);
}

// A draw of 300 L/min at node 4 turns the flow in pipe 4 round.
TEST(LoopBalanceTest, ReversesAFlow) {
  Ring ring(1.0F, 20.0F);
  SetFlow(ring.project, 2, 0.0F);
  SetFlow(ring.project, 3, 300.0F);
  SetFlow(ring.project, 4, 0.0F);
  BalanceLoops(ring.project);
  const Project& project = ring.project;
  EXPECT_LT(project.PipeFlow[4], 0.0F);
  EXPECT_LT(project.PipeDrop[4], 0.0F);
  EXPECT_NEAR(project.PipeDrop[3] + project.PipeDrop[4], project.PipeDrop[2], 0.00025F);
  EXPECT_NEAR(project.PipeFlow[3] - project.PipeFlow[4], 300.0F, 1e-3F);
}

// An added drop counts with the sign of its flow: it takes 0.1 bar off what the other way may lose.
TEST(LoopBalanceTest, CountsAddedDrops) {
  Ring ring(10.0F, 10.0F);
  ring.project.PipePressDrop[4] = 0.1F;
  for (const int pipe : {2, 3, 4}) SetFlow(ring.project, pipe, 300.0F);
  BalanceLoops(ring.project);
  const Project& project = ring.project;
  EXPECT_LT(project.PipeFlow[3], 300.0F);
  EXPECT_NEAR(test::LossOf(project.PipeFlow[2], 53.1, 10.0),
              test::LossOf(project.PipeFlow[3], 53.1, 10.0) + 0.1, 0.0003);
}

TEST(LoopBalanceTest, LeavesALoopAtRestAlone) {
  Ring ring(10.0F, 10.0F);
  for (const int pipe : {2, 3, 4}) SetFlow(ring.project, pipe, 0.0F);
  BalanceLoops(ring.project);
  EXPECT_EQ(ring.project.PipeFlow[2], 0.0F);
  EXPECT_EQ(ring.project.LoopError, 0.0F);
}

// Two loops that share a pipe, by the exact step of the method: one sweep, in the loops' order.
TEST(LoopBalanceTest, LaterLoopsSeeWhatEarlierOnesChanged) {
  Project project;
  MadeNetwork network(project);
  network.Pipe(1, 2, 5, 1.0F);
  for (const int end : {3, 3, 3}) network.Pipe(2, end, 3, 10.0F);
  network.Loop({-2, 3});
  network.Loop({-3, 4});
  project.LoopFactor = 1.0F;
  project.PressureTol = 100.0F;  // one sweep is enough
  const float flows[] = {0.0F, 0.0F, 400.0F, 200.0F, 100.0F};
  for (const int pipe : {2, 3, 4}) SetFlow(project, pipe, flows[pipe]);
  const auto loss = [](double flow) { return test::LossOf(flow, 53.1, 10.0); };
  const auto step = [&](double against, double with) {
    return (loss(with) - loss(against)) / 1.85 / (loss(with) / with + loss(against) / against);
  };
  const double first = step(400.0, 200.0);
  const double second = step(200.0 - first, 100.0);
  BalanceLoops(project);
  EXPECT_NEAR(project.PipeFlow[2], 400.0 + first, 1e-3);
  EXPECT_NEAR(project.PipeFlow[3], 200.0 - first + second, 1e-3);
  EXPECT_NEAR(project.PipeFlow[4], 100.0 - second, 1e-3);
  EXPECT_NEAR(project.LoopError, loss(400.0) - loss(200.0), 1e-5);
}

}  // namespace
}  // namespace zeb
