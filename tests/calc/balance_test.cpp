// The balance as a whole, by silent calculations, against the physics.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <map>
#include <tuple>
#include <utility>

#include "calc/calculation.h"
#include "calc/flow_paths.h"
#include "calc/fluid.h"
#include "calc/heads.h"
#include "calc/source_duty.h"
#include "made_network.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

struct Balance : TestSession {
  bool Calculate() { return Calculation(session, CalculationMode::kSilent); }

  MadeNetwork network{project};
};

// What every balanced result keeps, whatever the network: flows that meet at the nodes, heads on
// their law, paths that add up to the source, and loops that close.
void ExpectBalanced(const Project& project) {
  std::map<int, double> surplus;
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    surplus[project.PipeStartNode[pipe]] -= project.PipeFlow[pipe];
    surplus[project.PipeEndNode[pipe]] += project.PipeFlow[pipe];
  }
  surplus[project.SourceNode] += project.SourceFlow;
  for (const int head : OperatingHeads(project)) {
    surplus[NodeOfHead(project, head)] -= project.HeadFlow[head];
    const double pressure = project.HeadPressure[head];
    EXPECT_NEAR(project.HeadFlow[head], project.HeadK[head] * std::sqrt(pressure), 1e-3);
    const double at_source = pressure + project.HeadHeight[head] / 10.0;
    EXPECT_NEAR(SumAlongPath(project, PipeOfHead(project, head), at_source), project.SourcePressure,
                0.002);
  }
  for (const auto& [node, flow] : surplus) EXPECT_NEAR(flow, 0.0, 0.2) << "node " << node;
  for (int loop = 1; loop <= project.LoopCount; ++loop) {
    double sum = 0.0;
    for (int at = project.LoopFirst[loop]; at <= project.LoopLast[loop]; ++at) {
      const int pipe = project.LoopPipes[at];
      sum += (pipe < 0 ? -1.0 : 1.0) * project.PipeDrop[std::abs(pipe)];
    }
    EXPECT_NEAR(sum, 0.0, 0.0026) << "loop " << loop;
  }
}

// One head of K 80 behind 20 m of DN 100 and 10 m of DN 25: 60 L/min at 0.5625 bar for 5 mm/min on
// 12 m2.
TEST(BalanceTest, OneHeadAsksForItsPressureAndAllLosses) {
  const auto feed = [](double flow) { return LossOf(flow, 105.3, 20.0); };
  const auto last = [](double flow) { return LossOf(flow, 27.3, 10.0); };
  const double plain = 0.5625 + feed(60.0) + last(60.0);
  const std::tuple<const char*, void (*)(Project&), double, double> cases[] = {
      {"5 m down", [](Project& p) { p.PipeZ[2] = -5.0F; }, 60.0, plain - 0.5},
      {"heavy fluid, 5 m up",
       [](Project& p) { p.PipeZ[2] = 5.0F, ItemText(p, Item::kFluid) = "Foam SG=1.2"; }, 60.0,
       1.2 * (plain + 0.5)},
      {"joints of another length",
       [](Project& p) { p.PipeVJ[2] = 4, ItemText(p, Item::kComments) = "VJ=1.25"; }, 60.0,
       plain + 0.5 * last(60.0)},
      {"hydrant on the feed", [](Project& p) { p.PipeHydrant[1] = 1000.0F; }, 1060.0,
       0.5625 + feed(1060.0) + last(60.0)},
      {"dry behind the feed", [](Project& p) { ItemText(p, Item::kFluid) = "dry #2"; }, 60.0,
       plain + (std::pow(1.2, 1.85) - 1.0) * last(60.0)},
      {"minimum pressure governs", [](Project& p) { p.HeadMinPress[1] = 0.81F; }, 72.0,
       0.81 + feed(72.0) + last(72.0)},
  };
  for (const auto& [what, change, flow, pressure] : cases) {
    Balance run;
    run.network.Pipe(1, 2, 5, 20.0F);
    run.network.Head(run.network.Pipe(2, 3, 1, 10.0F), 80.0F, 12.0F, 5.0F, 0.5F);
    change(run.project);
    EXPECT_TRUE(run.Calculate()) << what;
    EXPECT_NEAR(run.project.SourceFlow, flow, 1e-2) << what;
    EXPECT_NEAR(run.project.SourcePressure, pressure, 1e-4) << what;
  }
}

// Four heads in a row on a rising range, whose far pipes are smaller.
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
  run.network.Supply({0.0F, 4.0F, 1000.0F, 2.0F});
  SilentDemand(run.session);
  const Project& project = run.project;
  const auto [flow, pressure] = RangeBalance::DutyWithLastHeadAt(0.5625);
  EXPECT_NEAR(project.DemandFlow, flow, 0.2);
  EXPECT_NEAR(project.DemandPressure, pressure, 0.002);
  EXPECT_EQ(project.DemandFlow, std::floor(project.SourceFlow * 10.0F + 0.5F) / 10.0F);
  EXPECT_EQ(ItemText(run.project, Item::kSupply), "Pump");
  EXPECT_EQ(project.ControlHead, 4);
  EXPECT_EQ(project.DesignFlow, 240.0F);
  EXPECT_EQ(project.ModelState, 2);
  EXPECT_NEAR(project.PipeVelocity[1], flow / 60000.0 / 0.0022145, 2e-3);
  ExpectBalanced(project);
}

// A straight curve meets what the range takes.
TEST(BalanceTest, ASupplyCurveMeetsTheSystem) {
  RangeBalance run;
  run.network.Supply({0.0F, 4.0F, 1000.0F, 2.0F}, 2.0F);
  ASSERT_TRUE(run.Calculate());
  double low = 0.1;
  double high = 4.0;
  while (high - low > 1e-9) {
    const double middle = (low + high) / 2.0;
    const auto [flow, pressure] = RangeBalance::DutyWithLastHeadAt(middle);
    (4.2 - 0.002 * flow > pressure ? low : high) = middle;
  }
  const auto [flow, pressure] = RangeBalance::DutyWithLastHeadAt(low);
  EXPECT_NEAR(run.project.SourceFlow, flow, 0.3);
  EXPECT_NEAR(run.project.SourcePressure, pressure, 0.002);
  ExpectBalanced(run.project);
}

// Ranges of four heads between two mains, fed at the first. Nodes 100, 200...: the near main; 101
// to 104: heads; 105...: the far main.
struct GridBalance : Balance {
  explicit GridBalance(int ranges) {
    network.Pipe(1, 100, 5, 10.0F, 5.0F);
    int before = 0;  // the first pipe of the range before
    for (int near = 100; near <= 100 * ranges; near += 100) {
      const int main = before != 0 ? network.Pipe(near - 100, near, 5, 3.0F) : 0;
      const int first = project.PipeCount + 1;
      for (int i = 0; i < 5; ++i) {
        const int pipe = network.Pipe(near + i, near + i + 1, 2, 3.0F, i < 3 ? 0.2F : -0.2F);
        if (i < 4) network.Head(pipe, 80.0F, 9.0F, 7.5F, 0.5F);
      }
      if (before != 0) {
        const int close = network.Pipe(near - 95, near + 5, 4, 3.0F);
        network.Loop({-close, -before - 4, -before - 3, -before - 2, -before - 1, -before, main,
                      first, first + 1, first + 2, first + 3, first + 4});
      }
      before = first;
    }
  }
};

TEST(BalanceTest, AGridBalances) {
  for (const int ranges : {2, 6, 25}) {
    GridBalance run(ranges);
    ASSERT_TRUE(run.Calculate());
    ExpectBalanced(run.project);
    // One head just has its density, none has less.
    float least = 1e9F;
    for (int head = 1; head <= run.project.HeadCount; ++head) {
      least = std::min(least, run.project.HeadFlow[head] / 9.0F);
    }
    EXPECT_NEAR(least, 7.5F, 2e-3F);
    run.network.Supply({0.0F, 9.0F, 9000.0F, 3.0F});
    ASSERT_TRUE(run.Calculate());
    ExpectBalanced(run.project);
  }
}

// Heads of many kinds on small pipes diverge. The run starts over from the densities alone, and
// their flows count once more in the design flow.
TEST(BalanceTest, StartsOverWhenItDiverges) {
  struct Branch {
    int from, size;
    float length, rise, k, area, density, min_press;
  };
  const Branch branches[] = {
      {2, 1, 8.62F, -0.98F, 57, 0, 0, 1.30F},       {3, 2, 4.84F, 1.72F, 160, 12, 5.0F, 0.31F},
      {2, 2, 8.37F, -1.01F, 57, 12, 11.75F, 0.98F}, {3, 1, 4.54F, -1.91F, 57, 0, 0, 0.52F},
      {6, 1, 7.15F, 1.81F, 160, 12, 7.30F, 0.33F},  {3, 3, 5.91F, -1.80F, 57, 12, 5.0F, 0.80F}};
  Balance run;
  run.network.Pipe(1, 2, 2, 20.4F);
  double design_flow = 0.0;
  for (int node = 3; const Branch& b : branches) {
    const int pipe = run.network.Pipe(b.from, node++, b.size, b.length, b.rise);
    run.network.Head(pipe, b.k, b.area, b.density, b.min_press);
    const double by_density = b.area * b.density;
    design_flow += by_density + std::max(by_density, b.k * std::sqrt(1.0 * b.min_press));
  }
  ASSERT_TRUE(run.Calculate());
  EXPECT_EQ(run.project.RestartState, 2);
  EXPECT_NEAR(run.project.DesignFlow, design_flow, 0.01);
  ExpectBalanced(run.project);
}

}  // namespace
}  // namespace zeb::test
