#include "calc/loop_balance.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calc/pressure_loss.h"
#include "made_network.h"

namespace zeb::test {
namespace {

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

}  // namespace
}  // namespace zeb::test
