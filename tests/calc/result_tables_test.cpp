#include "calc/result_tables.h"

#include <gtest/gtest.h>

#include <map>

#include "made_network.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

// Three sprinklers and an added building at the ends of pipes 2 to 5, and a pipe that closes back.
struct Results : TestSession {
  Results() {
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

TEST(ResultTablesTest, RangesOverSprinklersAndSumsOverAllHeads) {
  Results t;
  t.project.PipeEndPressure[5] = 1.004F;
  ComputeResultTables(t.session);
  const Project& p = t.project;
  EXPECT_FLOAT_EQ(p.SumHeadFlow, 100.0F + 100.0F + 80.0F + 120.0F + 300.0F);
  EXPECT_FLOAT_EQ(p.FlowBalance, 0.0F);
  EXPECT_NEAR(p.HeadPdError, 0.004F, 1E-6F);  // of the added building
  EXPECT_FLOAT_EQ(p.MinHeadFlow, 80.0F);
  EXPECT_FLOAT_EQ(p.MaxHeadFlow, 120.0F);
  EXPECT_FLOAT_EQ(p.HeadAreaMin, 0.0F);
  EXPECT_FLOAT_EQ(p.HeadAreaMax, 10.0F);
  EXPECT_FLOAT_EQ(p.MinHeadDensity, 8.0F);
  EXPECT_FLOAT_EQ(p.MaxHeadDensity, 10.0F);
  EXPECT_EQ(p.HeadsOver2Bar, 2);
  EXPECT_EQ(p.HeadsUnderPressure + p.HeadsUnderDensity, 0);
  EXPECT_EQ(p.HeadOrifice[1], 15.0F);  // an earlier calculation had marked it

  t.project.SelectedHeadsMode = 1;
  t.project.HeadOn[1] = 1;
  ComputeResultTables(t.session);
  EXPECT_FLOAT_EQ(p.MaxHeadFlow, 100.0F);
  EXPECT_NEAR(p.FlowBalance, 100.0F - 20000.0F / 700.0F, 1E-4F);

  t.project.HeadCount = 0;
  ComputeResultTables(t.session);
  EXPECT_EQ(p.MinHeadFlow, 0.0F);
  EXPECT_EQ(p.FlowBalance, 0.0F);
}

TEST(ResultTablesTest, TellsHeadsBelowTheirDutyWithATolerance) {
  const struct {
    float min_press, density;
    int under_pressure, under_density;
  } cases[] = {{1.2009F, 8.0009F, 0, 0}, {1.2011F, 8.0F, 1, 0}, {1.2F, 8.0011F, 0, 1}};
  for (const auto& c : cases) {
    Results t;
    t.project.HeadMinPress[2] = c.min_press;
    t.project.HeadDensity[2] = c.density;
    ComputeResultTables(t.session);
    EXPECT_EQ(t.project.HeadsUnderPressure, c.under_pressure) << c.min_press;
    EXPECT_EQ(t.project.HeadsUnderDensity, c.under_density) << c.density;
  }
}

TEST(ResultTablesTest, RangesOverPipesBySize) {
  Results t;
  ComputeResultTables(t.session);
  const Project& p = t.project;
  EXPECT_FLOAT_EQ(p.MinPipeFlow, 80.0F);
  EXPECT_FLOAT_EQ(p.MaxPipeFlow, 700.0F);
  EXPECT_FLOAT_EQ(p.MinPipeDrop, 0.2F);
  EXPECT_FLOAT_EQ(p.MaxPipeDrop, 1.1F);
  EXPECT_FLOAT_EQ(p.MinGradient, 200.0F / 10.001F);
  EXPECT_FLOAT_EQ(p.MaxGradient, 1100.0F / 3.001F);
  EXPECT_EQ(p.MinNominal, 25);
  EXPECT_EQ(p.MaxNominal, 80);
  const double volume = 12.0 * 80.9 * 80.9 + 9.0 * 27.3 * 27.3 + 6.0 * 41.9 * 41.9;
  EXPECT_NEAR(p.PipeVolume, volume * 3.14159 / 4000000.0, 1E-7);
}

TEST(ResultTablesTest, SortsPipesByVelocity) {
  Results t;
  ComputeResultTables(t.session);
  const Project& p = t.project;
  EXPECT_EQ(p.PipesNoFlow, 1);
  EXPECT_EQ(p.PipesOverSpeed, 1);  // exactly 10 m/s is not over
  EXPECT_EQ(p.FastestPipe, 3);
  EXPECT_FLOAT_EQ(p.ValveMaxVelocity, 2.85F);
  t.project.RuleType = 3;  // and again, from the start
  ComputeResultTables(t.session);
  EXPECT_EQ(p.PipesOverSpeed, 2);
  const std::map<int, int> bands{{0, 1}, {1, 0}, {2, 2}, {3, 1}, {10, 1}, {119, 1}};
  for (const auto& [band, count] : bands) EXPECT_EQ(p.VelocityBuckets[band], count) << band;
}

}  // namespace
}  // namespace zeb::test
