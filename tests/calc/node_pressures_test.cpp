#include "calc/node_pressures.h"

#include <gtest/gtest.h>

#include "made_network.h"

namespace zeb {
namespace {

using test::MadeNetwork;

// Feed to node 2, a ring 2-3-4-2 of which pipe 4 closes at node 4 and flows backward, a riser of
// 5 m from node 4, and a last pipe without flow.
TEST(NodePressuresTest, SpreadFromTheSource) {
  Project project;
  MadeNetwork network(project);
  network.Pipe(1, 2, 5, 1.0F, 1.0F);
  network.Pipe(2, 3, 5, 1.0F);
  network.Pipe(2, 4, 5, 1.0F);
  network.Pipe(4, 3, 5, 1.0F);
  network.Pipe(4, 5, 5, 5.0F, 5.0F);
  network.Pipe(5, 6, 5, 1.0F, -2.0F);
  const float flows[] = {0.0F, 300.0F, 200.0F, 100.0F, -50.0F, 150.0F, 0.0F};
  const float drops[] = {0.0F, 0.4F, 0.2F, 0.25F, -0.05F, 0.1F, 0.0F};
  for (int pipe = 1; pipe <= 6; ++pipe) {
    project.PipeFlow[pipe] = flows[pipe];
    project.PipeDrop[pipe] = drops[pipe];
  }
  project.SourcePressure = 4.0F;
  ClearNodePressures(project);
  SpreadNodePressures(project);
  const float nodes[] = {0.0F, 4.0F, 3.5F, 3.3F, 3.25F, 2.65F, 2.85F};
  for (int pipe = 1; pipe <= 6; ++pipe) {
    EXPECT_NEAR(project.PipeStartPressure[pipe], nodes[project.PipeStartNode[pipe]], 1e-5F) << pipe;
    EXPECT_NEAR(project.PipeEndPressure[pipe], nodes[project.PipeEndNode[pipe]], 1e-5F) << pipe;
  }
}

// Pipe 2 is written towards the feed: its start node is behind its end node.
TEST(NodePressuresTest, GoesUpAPipeFromItsEnd) {
  Project project;
  MadeNetwork network(project);
  network.Pipe(1, 2, 5, 1.0F);
  network.Pipe(3, 2, 5, 1.0F, 4.0F);
  network.Pipe(9, 8, 5, 1.0F);  // apart from the rest
  project.PipeFlow[2] = -100.0F;
  project.PipeDrop[2] = -0.3F;
  project.SourcePressure = 2.0F;
  ClearNodePressures(project);
  SpreadNodePressures(project);
  EXPECT_EQ(project.PipeEndPressure[2], 2.0F);
  EXPECT_NEAR(project.PipeStartPressure[2], 2.0F - 0.3F + 0.4F, 1e-6F);
  EXPECT_EQ(project.PipeStartPressure[3], kUnsetPressure);
  EXPECT_EQ(project.PipeEndPressure[3], kUnsetPressure);
}

}  // namespace
}  // namespace zeb
