#include "calc/node_pressures.h"

#include <gtest/gtest.h>

#include "made_network.h"

namespace zeb::test {
namespace {

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

}  // namespace
}  // namespace zeb::test
