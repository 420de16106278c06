#include "calc/result_tables.h"

#include <gtest/gtest.h>

#include <map>
#include <tuple>

#include "made_network.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

// Three sprinklers and an added building at the ends of pipes 2 to 5, and a pipe that closes back.
struct ResultTables : testing::Test, TestSession {
  ResultTables() {
    MadeNetwork network(project);
    const struct {
      int start, end, size;
      float length, flow, velocity, drop, end_pressure;
    } pipes[] = {{1, 2, 4, 10, 700, 2.27F, 0.2F, 3.8F}, {2, 3, 1, 3, 100, 2.85F, 0.5F, 2.0F},
                 {2, 4, 1, 3, 80, 119.7F, 0.4F, 1.2F},  {2, 5, 1, 3, 120, 3.42F, 0.6F, 3.2F},
                 {2, 6, 2, 3, 300, 10.0F, 0.9F, 1.0F},  {6, 3, 2, 3, -130, 0.0009F, -1.1F, 2.0F}};
    for (const auto& p : pipes) {
      const int pipe = network.Pipe(p.start, p.end, p.size, p.length);
      project.PipeFlow[pipe] = p.flow;
      project.PipeVelocity[pipe] = p.velocity;
      project.PipeDrop[pipe] = p.drop;
      project.PipeEqLength[pipe] = p.length;
      project.PipeEndPressure[pipe] = p.end_pressure;
    }
    project.PipeValve[1] = project.PipeValve[2] = 5;
    project.PipeAddLength[1] = 2.0F;
    const struct {
      float k, area, density, min_press, flow, pressure;
    } heads[] = {{70.71068F, 10, 10, 1.0F, 100, 2.0F},
                 {73.02967F, 10, 8, 1.2F, 80, 1.2F},
                 {67.08204F, 0, 0, 1.0F, 120, 3.2F},
                 {300.0F, 100, 3.1F, 1.5F, 300, 1.0F}};
    for (const auto& h : heads) {
      const int head = network.Head(2 + project.HeadCount, h.k, h.area, h.density, h.min_press);
      project.HeadFlow[head] = h.flow;
      project.HeadPressure[head] = h.pressure;
    }
    project.HeadCode[4] = -1.0F;
    project.HeadOrifice[1] = -15.0F;
    project.TotalHydrantFlow = 100.0F;
    project.SourceFlow = 700.0F;
  }
};

TEST_F(ResultTables, RangesOverSprinklersAndSumsOverAllHeads) {
  project.PipeEndPressure[5] = 1.004F;
  ComputeResultTables(session);
  EXPECT_FLOAT_EQ(project.SumHeadFlow, 100.0F + 100.0F + 80.0F + 120.0F + 300.0F);
  EXPECT_FLOAT_EQ(project.FlowBalance, 0.0F);
  EXPECT_NEAR(project.HeadPdError, 0.004F, 1E-6F);  // of the added building
  EXPECT_FLOAT_EQ(project.MinHeadFlow, 80.0F);
  EXPECT_FLOAT_EQ(project.MaxHeadFlow, 120.0F);
  EXPECT_FLOAT_EQ(project.HeadAreaMin, 0.0F);
  EXPECT_FLOAT_EQ(project.HeadAreaMax, 10.0F);
  EXPECT_FLOAT_EQ(project.MinHeadDensity, 8.0F);
  EXPECT_FLOAT_EQ(project.MaxHeadDensity, 10.0F);
  EXPECT_EQ(project.HeadsOver2Bar, 2);
  EXPECT_EQ(project.HeadsUnderPressure + project.HeadsUnderDensity, 0);
  EXPECT_EQ(project.HeadOrifice[1], 15.0F);  // an earlier calculation had marked it

  project.SelectedHeadsMode = 1;
  project.HeadOn[1] = 1;
  ComputeResultTables(session);
  EXPECT_FLOAT_EQ(project.MaxHeadFlow, 100.0F);
  EXPECT_NEAR(project.FlowBalance, 100.0F - 20000.0F / 700.0F, 1E-4F);

  project.HeadCount = 0;
  ComputeResultTables(session);
  EXPECT_EQ(project.MinHeadFlow, 0.0F);
  EXPECT_EQ(project.FlowBalance, 0.0F);
}

TEST_F(ResultTables, TellsHeadsBelowTheirDutyWithATolerance) {
  const std::tuple<float, float, int, int> cases[] = {
      {1.2009F, 8.0009F, 0, 0}, {1.2011F, 8.0F, 1, 0}, {1.2F, 8.0011F, 0, 1}};
  for (const auto& [min_press, density, under_pressure, under_density] : cases) {
    project.HeadMinPress[2] = min_press;
    project.HeadDensity[2] = density;
    ComputeResultTables(session);
    EXPECT_EQ(project.HeadsUnderPressure, under_pressure) << min_press;
    EXPECT_EQ(project.HeadsUnderDensity, under_density) << density;
  }
}

TEST_F(ResultTables, RangesOverPipesBySize) {
  ComputeResultTables(session);
  EXPECT_FLOAT_EQ(project.MinPipeFlow, 80.0F);
  EXPECT_FLOAT_EQ(project.MaxPipeFlow, 700.0F);
  EXPECT_FLOAT_EQ(project.MinPipeDrop, 0.2F);
  EXPECT_FLOAT_EQ(project.MaxPipeDrop, 1.1F);
  EXPECT_FLOAT_EQ(project.MinGradient, 200.0F / 10.001F);
  EXPECT_FLOAT_EQ(project.MaxGradient, 1100.0F / 3.001F);
  EXPECT_EQ(project.MinNominal, 25);
  EXPECT_EQ(project.MaxNominal, 80);
  const double volume = 12.0 * 80.9 * 80.9 + 9.0 * 27.3 * 27.3 + 6.0 * 41.9 * 41.9;
  EXPECT_NEAR(project.PipeVolume, volume * 3.14159 / 4000000.0, 1E-7);
}

TEST_F(ResultTables, SortsPipesByVelocity) {
  ComputeResultTables(session);
  EXPECT_EQ(project.PipesNoFlow, 1);
  EXPECT_EQ(project.PipesOverSpeed, 1);  // exactly 10 m/s is not over
  EXPECT_EQ(project.FastestPipe, 3);
  EXPECT_FLOAT_EQ(project.ValveMaxVelocity, 2.85F);
  project.RuleType = 3;  // and again, from the start
  ComputeResultTables(session);
  EXPECT_EQ(project.PipesOverSpeed, 2);
  const std::map<int, int> bands{{0, 1}, {1, 0}, {2, 2}, {3, 1}, {10, 1}, {119, 1}};
  for (const auto& [band, count] : bands) EXPECT_EQ(project.VelocityBuckets[band], count) << band;
}

}  // namespace
}  // namespace zeb::test
