// The balance as a whole, by silent calculations, against the physics.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <functional>
#include <map>

#include "calc/calculation.h"
#include "calc/flow_paths.h"
#include "calc/fluid.h"
#include "calc/heads.h"
#include "calc/source_duty.h"
#include "made_network.h"
#include "support/test_session.h"

namespace zeb {
namespace {

using test::LossOf;
using test::MadeNetwork;

struct Balance : test::TestSession {
  bool Calculate() { return Calculation(session, CalculationMode::kSilent); }

  Project& project = session.project;
  MadeNetwork network{project};
};

// What every balanced result keeps, whatever the network: flows that meet at the nodes, heads on
// their law, paths that add up to the source, and loops that close.
void ExpectBalanced(const Project& project) {
  std::map<int, double> surplus;
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    surplus[project.PipeStartNode[pipe]] -= project.PipeFlow[pipe];
    surplus[project.PipeEndNode[pipe]] += project.PipeFlow[pipe] - project.PipeHydrant[pipe];
  }
  surplus[project.SourceNode] += project.SourceFlow;
  const double metres_per_bar = project.AuthorityStatic / project.FluidSG;
  for (const int head : OperatingHeads(project)) {
    surplus[NodeOfHead(project, head)] -= project.HeadFlow[head];
    const double pressure = project.HeadPressure[head];
    EXPECT_NEAR(project.HeadFlow[head], project.HeadK[head] * std::sqrt(pressure / project.FluidSG),
                1e-3);
    const double required = SumAlongPath(project, PipeOfHead(project, head), pressure) +
                            project.HeadHeight[head] / metres_per_bar;
    EXPECT_NEAR(required, project.SourcePressure, 0.002) << "head " << head;
  }
  for (const auto& [node, flow] : surplus) EXPECT_NEAR(flow, 0.0, 0.2) << "node " << node;
  for (int loop = 1; loop <= project.LoopCount; ++loop) {
    double sum = 0.0;
    for (int at = project.LoopFirst[loop]; at <= project.LoopLast[loop]; ++at) {
      const int pipe = project.LoopPipes[at];
      sum +=
          std::copysign(project.PipeDrop[std::abs(pipe)], pipe * project.PipeDrop[std::abs(pipe)]);
    }
    EXPECT_NEAR(sum, 0.0, 0.0026) << "loop " << loop;
  }
}

// One head of K 80 behind 20 m of DN 100 and 10 m of DN 25: 60 L/min at 0.5625 bar for 5 mm/min on
// 12 m2.
TEST(BalanceTest, OneHeadAsksForItsPressureAndAllLosses) {
  const auto loss = [](double flow) {
    return LossOf(flow, 105.3, 20.0) + LossOf(flow, 27.3, 10.0);
  };
  struct Case {
    const char* what;
    std::function<void(Project&)> set;
    double flow, pressure;
  };
  const Case cases[] = {
      {"plain", [](Project&) {}, 60.0, 0.5625 + loss(60.0)},
      {"5 m up", [](Project& p) { p.PipeZ[2] = 5.0F; }, 60.0, 0.5625 + loss(60.0) + 0.5},
      {"5 m down", [](Project& p) { p.PipeZ[2] = -5.0F; }, 60.0, 0.5625 + loss(60.0) - 0.5},
      {"heavy fluid, 5 m up",
       [](Project& p) {
         p.PipeZ[2] = 5.0F;
         ItemText(p, Item::kFluid) = "Foam SG=1.2";
       },
       60.0, 1.2 * (0.5625 + loss(60.0) + 0.5)},
      {"added drop", [](Project& p) { p.PipePressDrop[2] = 0.3F; }, 60.0, 0.8625 + loss(60.0)},
      {"orifice plate", [](Project& p) { p.PipeOrifice[2] = 100.0F; }, 60.0,
       0.5625 + loss(60.0) + 0.36},
      {"added length", [](Project& p) { p.PipeAddLength[2] = 5.0F; }, 60.0,
       0.5625 + loss(60.0) + LossOf(60.0, 27.3, 5.0)},
      {"joints of another length",
       [](Project& p) {
         p.PipeVJ[2] = 4;
         ItemText(p, Item::kComments) = "VJ=1.25";
       },
       60.0, 0.5625 + loss(60.0) + LossOf(60.0, 27.3, 5.0)},
      {"hydrant on the feed", [](Project& p) { p.PipeHydrant[1] = 1000.0F; }, 1060.0,
       0.5625 + LossOf(1060.0, 105.3, 20.0) + LossOf(60.0, 27.3, 10.0)},
      {"dry behind the feed", [](Project& p) { ItemText(p, Item::kFluid) = "dry #2"; }, 60.0,
       0.5625 + LossOf(60.0, 105.3, 20.0) + std::pow(1.2, 1.85) * LossOf(60.0, 27.3, 10.0)},
      {"minimum pressure governs", [](Project& p) { p.HeadMinPress[1] = 0.81F; }, 72.0,
       0.81 + loss(72.0)},
      {"added building",
       [](Project& p) {
         p.HeadArea[1] = 50.0F;
         p.HeadK[1] = 200.0F / std::sqrt(0.9F);
         p.HeadMinPress[1] = 0.9F;
         p.HeadDensity[1] = 4.0F;
         p.HeadCode[1] = -1.0F;
       },
       200.0, 0.9 + loss(200.0)},
  };
  for (const Case& c : cases) {
    Balance run;
    run.network.Pipe(1, 2, 5, 20.0F);
    run.network.Head(run.network.Pipe(2, 3, 1, 10.0F), 80.0F, 12.0F, 5.0F, 0.5F);
    c.set(run.project);
    EXPECT_TRUE(run.Calculate()) << c.what;
    EXPECT_NEAR(run.project.SourceFlow, c.flow, 1e-2) << c.what;
    EXPECT_NEAR(run.project.SourcePressure, c.pressure, 1e-4) << c.what;
  }
}

// Four heads in a row, the far pipes smaller, on a rising range.
struct RangeBalance : Balance {
  RangeBalance() {
    network.Pipe(1, 2, 3, 12.0F, 3.0F);
    for (int node = 2; node <= 5; ++node) {
      const int size = node <= 3 ? 2 : 1;
      network.Head(network.Pipe(node, node + 1, size, 4.0F, 0.25F), 80.0F, 12.0F, 5.0F, 0.35F);
    }
  }

  // The flow and pressure at the source when the last head is at `pressure`, from head to head.
  static std::pair<double, double> DutyWithLastHeadAt(double pressure) {
    double flow = 0.0;
    for (int node = 5; node >= 2; --node) {
      flow += 80.0 * std::sqrt(pressure);
      pressure += LossOf(flow, node <= 3 ? 41.9 : 27.3, 4.0) + 0.025;
    }
    return {flow, pressure + LossOf(flow, 53.1, 12.0) + 0.3};
  }
};

TEST(BalanceTest, TheFarHeadGovernsARange) {
  RangeBalance run;
  ASSERT_TRUE(run.Calculate());
  const auto [flow, pressure] = RangeBalance::DutyWithLastHeadAt(0.5625);
  EXPECT_NEAR(run.project.SourceFlow, flow, 0.2);
  EXPECT_NEAR(run.project.SourcePressure, pressure, 0.002);
  EXPECT_EQ(run.project.ControlHead, 4);
  EXPECT_EQ(run.project.DesignFlow, 240.0F);
  EXPECT_EQ(run.project.ModelState, 2);
  EXPECT_EQ(run.project.PipeStartPressure[1], -100.0F);
  EXPECT_NEAR(run.project.PipeVelocity[1], flow / 60000.0 / 0.0022145, 2e-3);
  ExpectBalanced(run.project);
}

TEST(BalanceTest, PickedHeadsAloneOperate) {
  RangeBalance run;
  run.project.SelectedHeadsMode = 1;
  run.project.HeadOn[2] = 1;
  ASSERT_TRUE(run.Calculate());
  EXPECT_NEAR(run.project.SourceFlow, 60.0F, 1e-3F);
  EXPECT_EQ(run.project.PipeFlow[4], 0.0F);
  EXPECT_NEAR(run.project.SourcePressure,
              0.5625 + 0.3 + 0.05 + LossOf(60.0, 53.1, 12.0) + LossOf(60.0, 41.9, 8.0), 1e-4);
}

// A straight curve meets what the range takes.
TEST(BalanceTest, ASupplyCurveMeetsTheSystem) {
  RangeBalance run;
  run.network.Supply({0.0F, 4.0F, 1000.0F, 2.0F}, 2.0F);
  ASSERT_TRUE(run.Calculate());
  const auto surplus = [](double last_head) {
    const auto [flow, pressure] = RangeBalance::DutyWithLastHeadAt(last_head);
    return 4.0 - 0.002 * flow + 0.2 - pressure;
  };
  double low = 0.1;
  double high = 4.0;
  while (high - low > 1e-9) ((surplus((low + high) / 2.0) > 0.0) ? low : high) = (low + high) / 2.0;
  const auto [flow, pressure] = RangeBalance::DutyWithLastHeadAt(low);
  EXPECT_NEAR(run.project.SourceFlow, flow, 0.3);
  EXPECT_NEAR(run.project.SourcePressure, pressure, 0.002);
  EXPECT_EQ(run.project.Relaxation, 0.8F);
  EXPECT_EQ(run.project.OffCurve, 0);
  ExpectBalanced(run.project);
}

// Ranges of four heads between two mains, range by range, fed at the first.
struct GridBalance : Balance {
  explicit GridBalance(int ranges) {
    network.Pipe(1, 100, 5, 10.0F, 5.0F);
    for (int range = 0; range < ranges; ++range) AddRange(range);
  }

  // Nodes 100, 200...: the near main; 101 to 104 heads; 105 the far main.
  void AddRange(int range) {
    const int near = 100 * (range + 1);
    const int main = range > 0 ? network.Pipe(near - 100, near, 5, 3.0F) : 0;
    const int first = project.PipeCount + 1;
    for (int i = 0; i < 5; ++i) {
      const int pipe = network.Pipe(near + i, near + i + 1, 2, 3.0F, i < 3 ? 0.2F : -0.2F);
      if (i < 4) network.Head(pipe, 80.0F, 9.0F, 7.5F, 0.5F);
    }
    if (range == 0) {
      before_ = first;
      return;
    }
    const int close = network.Pipe(near - 95, near + 5, 4, 3.0F);
    const int b = before_;
    network.Loop({-close, -(b + 4), -(b + 3), -(b + 2), -(b + 1), -b, main, first, first + 1,
                  first + 2, first + 3, first + 4});
    before_ = first;
  }

  int before_ = 0;  // the first pipe of the range before
};

TEST(BalanceTest, AGridBalances) {
  for (const bool curve : {false, true}) {
    GridBalance run(6);
    if (curve) run.network.Supply({0.0F, 6.0F, 3000.0F, 3.0F});
    ASSERT_TRUE(run.Calculate());
    EXPECT_EQ(run.project.LoopFactor, 1.15F);
    ExpectBalanced(run.project);
    if (curve) {
      EXPECT_NEAR(run.project.SourcePressure, 6.0 - 0.001 * run.project.SourceFlow, 1e-5);
      continue;
    }
    // One head just has its density, none has less.
    float least = 1e9F;
    for (int head = 1; head <= run.project.HeadCount; ++head) {
      least = std::min(least, run.project.HeadFlow[head] / run.project.HeadArea[head]);
    }
    EXPECT_NEAR(least, 7.5F, 2e-3F);
  }
}

TEST(BalanceTest, LoopFactorGrowsWithTheLoopsUpToALimit) {
  const std::pair<int, float> cases[] = {{1, 1.03F}, {23, 1.69F}, {24, 1.7F}, {40, 1.7F}};
  for (const auto& [loops, factor] : cases) {
    GridBalance run(loops + 1);
    ASSERT_TRUE(run.Calculate());
    EXPECT_NEAR(run.project.LoopFactor, factor, 1e-6F) << loops;
    ExpectBalanced(run.project);
  }
}

TEST(BalanceTest, RelaxationFollowsTheSpreadOfTheHeads) {
  struct Case {
    const char* what;
    std::function<void(Balance&)> set;
    float relaxation;
  };
  const Case cases[] = {
      {"like heads", [](Balance&) {}, 0.6F},
      {"unlike heads", [](Balance& b) { b.project.HeadMinPress[4] = 4.0F; }, 0.8F},
      {"dense on the smallest size", [](Balance& b) { b.project.PipeSizeIndex[5] = 1; }, 0.9F},
      {"density of 4.0 on it",
       [](Balance& b) {
         b.project.PipeSizeIndex[5] = 1;
         ItemText(b.project, Item::kDensity) = "4.0";
       },
       0.6F},
      {"curve before density",
       [](Balance& b) {
         b.project.PipeSizeIndex[5] = 1;
         b.network.Supply({0.0F, 4.0F, 1000.0F, 3.9F});
       },
       0.8F},
      {"entered",
       [](Balance& b) {
         b.network.Supply({0.0F, 4.0F, 1000.0F, 3.9F});
         ItemText(b.project, Item::kComments) = "RF=0.65";
       },
       0.65F},
      {"entered as 0", [](Balance& b) { ItemText(b.project, Item::kComments) = "RF=0"; }, 0.6F},
  };
  for (const Case& c : cases) {
    Balance run;
    run.network.Pipe(1, 2, 5, 1.0F);
    for (int node = 2; node <= 5; ++node) {
      run.network.Head(run.network.Pipe(node, node + 1, 4, 1.0F), 80.0F, 12.0F, 5.0F, 0.35F);
    }
    c.set(run);
    ASSERT_TRUE(run.Calculate()) << c.what;
    EXPECT_NEAR(run.project.Relaxation, c.relaxation, 1e-6F) << c.what;
  }
}

// Heads of many kinds on small pipes take so long to settle that the run starts over, from the
// densities alone: those of the heads with areas are 60, 141, 60, 87.6 and 60 L/min.
TEST(BalanceTest, StartsOverWhenItDiverges) {
  Balance run;
  run.network.Pipe(1, 2, 2, 20.4F);
  struct Branch {
    int from, size;
    float length, rise, k, area, density, min_press;
  };
  const Branch branches[] = {
      {2, 1, 8.62F, -0.98F, 57, 0, 0, 1.30F},       {3, 2, 4.84F, 1.72F, 160, 12, 5.0F, 0.31F},
      {2, 2, 8.37F, -1.01F, 57, 12, 11.75F, 0.98F}, {3, 1, 4.54F, -1.91F, 57, 0, 0, 0.52F},
      {6, 1, 7.15F, 1.81F, 160, 12, 7.30F, 0.33F},  {3, 3, 5.91F, -1.80F, 57, 12, 5.0F, 0.80F}};
  int node = 2;
  double with_minimum = 0.0;
  double by_density = 0.0;
  for (const Branch& b : branches) {
    ++node;
    run.network.Head(run.network.Pipe(b.from, node, b.size, b.length, b.rise), b.k, b.area,
                     b.density, b.min_press);
    by_density += b.area * b.density;
    with_minimum += std::max<double>(b.area * b.density, b.k * std::sqrt(b.min_press));
  }
  ASSERT_TRUE(run.Calculate());
  EXPECT_EQ(run.project.RestartState, 2);
  EXPECT_NEAR(run.project.DesignFlow, with_minimum + by_density, 0.01);
  EXPECT_LT(run.project.IterationCount, 201);
  ExpectBalanced(run.project);
}

// A supply too weak for the heads swings until the passes are used up.
TEST(BalanceTest, EndsAfterTheLastPass) {
  RangeBalance run;
  run.network.Supply({0.0F, 3.0F, 50.0F, 2.0F, 100.0F, 0.15F});
  ASSERT_TRUE(run.Calculate());
  EXPECT_EQ(run.project.IterationCount, 201);
}

TEST(BalanceTest, StopsOnRequest) {
  RangeBalance run;
  run.shell.on_yield = [&] {
    if (run.project.Iteration == 3) run.project.CalcCancelled = 1;
  };
  EXPECT_FALSE(run.Calculate());
  EXPECT_EQ(run.project.Iteration, 3);
  EXPECT_EQ(run.project.SourceFlow, 0.0F);
  EXPECT_EQ(run.project.SourcePressure, 0.0F);
  EXPECT_EQ(run.project.ModelState, 1);
  EXPECT_EQ(run.commands.view_resets, 1);
  EXPECT_FALSE(run.shell.busy_pointer);
}

TEST(BalanceTest, TheDemandIsRoundedAndTheSupplyPutBack) {
  RangeBalance run;
  run.network.Supply({0.0F, 4.0F, 1000.0F, 2.0F});
  SilentDemand(run.session);
  const auto [flow, pressure] = RangeBalance::DutyWithLastHeadAt(0.5625);
  EXPECT_NEAR(run.project.DemandFlow, flow, 0.2);
  EXPECT_NEAR(run.project.DemandPressure, pressure, 0.002);
  EXPECT_EQ(run.project.DemandFlow, std::round(run.project.DemandFlow * 10.0F) / 10.0F);
  EXPECT_EQ(ItemText(run.project, Item::kSupply), "Pump");
  EXPECT_TRUE(run.dialogs.messages.empty());
  EXPECT_DOUBLE_EQ(RoundHalfUp(-0.25, 1), -0.2);
  EXPECT_DOUBLE_EQ(RoundHalfUp(1.0625, 3), 1.063);
}

}  // namespace
}  // namespace zeb
