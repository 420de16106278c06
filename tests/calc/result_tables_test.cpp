// The tables of the results, and the lists of what is beyond its limits.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <tuple>
#include <utility>

#include "calc/limit_list_form.h"
#include "calc/limit_lists.h"
#include "calc/result_tables.h"
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

// Two pipes and a head that keep all limits. A list is kept as its texts, one a line.
struct WithinLimits : TestSession {
  WithinLimits() {
    MadeNetwork network(project);
    network.Pipe(1, 2, 3, 4.0F);
    network.Pipe(2, 30, 1, 4.0F);
    for (int pipe = 1; pipe <= 2; ++pipe) {
      project.PipeFlow[pipe] = 60.0F;
      project.PipeVelocity[pipe] = 2.0F;
      project.PipeEqLength[pipe] = 4.25F;
      project.PipeDrop[pipe] = 0.5F;
    }
    network.Head(2, 60.0F, 12.0F, 5.0F, 0.5F);
    project.HeadFlow[1] = 60.0F;
    project.HeadPressure[1] = project.HeadStartPressure[1] = 1.0F;
    project.HeadOrifice[1] = 15.0F;
    project.SourceFlow = 60.0F;
    project.SourcePressure = 2.5F;
    project.minVel = 1.0F;
    project.maxVel = 6.0F;
    project.maxPD = 1.0F;
    shell.OnForm<LimitListForm>("frmLimitList", [this](const LimitListForm& form) {
      headers += form.Header;
      text = form.Caption + "\n" + form.Title + "\n" + form.Header + "\n" + form.Columns[0] + "\n" +
             form.Columns[1] + "\n" + form.Rows + form.Foot;
    });
  }

  std::string headers, text;
};

struct LimitLists : testing::Test, WithinLimits {};

TEST_F(LimitLists, ListsPipesAndMarksThem) {
  project.PipeVelocity[2] = 6.0F;
  ShowLimitLists(session);
  EXPECT_EQ(text,
            "List of pipes beyond specified limits\n"
            "Source duty = 60.0 L/min at 2.500 bars\n"
            "1 pipes with velocities over 6 m/s\n"
            " N o d e s   Size  F l o w   Vel   Eq.len  Pressure\n"
            "Start   End   mm    L/min    m/s      m    drop bars\n"
            "    2    30   25     60.0    6.00    4.25    0.500\r\n"
            "These pipes may be undersized - click on 'OK' to proceed");
  EXPECT_EQ(project.PipeError[1], 0);
  EXPECT_EQ(project.PipeError[2], 1);
}

TEST_F(LimitLists, ListsHeadsAndMarksThem) {
  project.HeadMinPress[1] = 1.5F;
  ShowLimitLists(session);
  EXPECT_EQ(text,
            "List of under performing heads\n"
            "Source duty = 60.0 L/min at 2.500 bars\n"
            "1 heads are under their minimum specified pressures\n"
            "Head  F l o w  Area  Density mm/min   Pressure bars\n"
            "node   L/min   sq.m  Reqd    Actual   Reqd   Actual\n"
            "  30    60.0 12.000   5.0      5.00   1.50    1.000\r\n"
            "Possible incorrect 'k' factors or areas - click on 'OK' to proceed");
  EXPECT_EQ(project.HeadOrifice[1], -15.0F);
  project.PumpCurveIndex = 2;
  ShowLimitLists(session);
  EXPECT_TRUE(text.ends_with("\r\nPossible inadequate pump curve specified"));
}

TEST(LimitListsTest, CountsALimitItselfAsBroken) {
  const std::pair<void (*)(Project&), std::string> cases[] = {
      {[](Project& p) { p.PipeVelocity[2] = 1.0F; }, "1 pipes with velocities under 1 m/s"},
      {[](Project& p) { p.PipeVelocity[2] = 1.001F; }, ""},
      {[](Project& p) { p.PipeVelocity[2] = 5.999F; }, ""},
      {[](Project& p) { p.PipeDrop[2] = -1.0F; }, "1 pipes with pressure drops over 1 bar"},
      {[](Project& p) { p.PipeDrop[2] = -0.999F; }, ""},
      {[](Project& p) { p.HeadMinPress[1] = 1.0009F; }, ""},
      {[](Project& p) { p.HeadDensity[1] = 5.0009F; }, ""},
      {[](Project& p) { p.HeadDensity[1] = 5.0011F; },
       "1 heads are under their minimum specified density"},
      // The head gives three times 20 L/min, which it would give at 1/9 bar.
      {[](Project& p) { p.HeadStartPressure[1] = 0.1112F; }, ""},
      {[](Project& p) { p.HeadStartPressure[1] = 0.111F; },
       "1 heads are over 3 x required minimum flow"}};
  for (const auto& [change, headers] : cases) {
    WithinLimits t;
    change(t.project);
    ShowLimitLists(t.session);
    EXPECT_EQ(t.headers, headers);
  }
}

TEST_F(LimitLists, LeavesOutAddedBuildingsAndHeadsThatAreOff) {
  project.HeadMinPress[1] = 2.0F;
  project.HeadCode[1] = -1.0F;
  ShowLimitLists(session);
  project.HeadCode[1] = 1.0F;
  project.SelectedHeadsMode = 1;
  ShowLimitLists(session);
  EXPECT_EQ(headers, "");
}

}  // namespace
}  // namespace zeb::test
