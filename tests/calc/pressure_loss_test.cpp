#include "calc/pressure_loss.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <tuple>
#include <utility>

#include "calc/fluid.h"
#include "made_network.h"

namespace zeb::test {
namespace {

constexpr int kSize50 = 3;
constexpr int kSize350 = 6;

// A pipe of 10 m in DN 50, with one tee of 3 m.
struct OnePipe {
  OnePipe() {
    MadeNetwork(project).Pipe(1, 2, kSize50, 10.0F);
    project.PipeTees[1] = 1;
  }

  Project project;
};

TEST(EquivalentLengthTest, AddsUpWhatThePipeHolds) {
  const std::tuple<const char*, void (*)(Project&), int, float> cases[] = {
      {"elbows", [](Project& p) { p.PipeElbows[1] = 2; }, kSize50, 15.0F},
      {"welded from the size itself up", [](Project& p) { p.PipeElbows[1] = 2, p.WeldSize = 50; },
       kSize50, 14.0F},
      {"valve", [](Project& p) { p.PipeValve[1] = 5; }, kSize50, 15.0F},
      {"joints", [](Project& p) { p.PipeVJ[1] = 4; }, kSize50, 14.2F},
      {"the type's factor on fittings alone",
       [](Project& p) { p.PipeAddLength[1] = 1.0F, p.TypeFittingFactor[1] = 1.5F; }, kSize50,
       15.5F},
      {"large sizes by their nominal", [](Project& p) { p.PipeElbows[1] = 1, p.PipeSize[1] = 350; },
       kSize350, 10.0F + 0.0734F * 350.0F},
      {"301 mm by the table", [](Project& p) { p.PipeSize[1] = 301; }, kSize350, 13.0F},
      {"by the table under other rules", [](Project& p) { p.PipeSize[1] = 350, p.RuleType = 3; },
       kSize350, 13.0F},
      {"dry", [](Project& p) { p.DrySystem = 1; }, kSize50, 10.0F + 3.0F * 0.714F},
      {"dry from a later pipe", [](Project& p) { p.DrySystem = 1, p.DryFromPipe = 2; }, kSize50,
       13.0F}};
  for (const auto& [what, change, size, length] : cases) {
    OnePipe one;
    change(one.project);
    EquivalentLength(one.project, 1, size);
    EXPECT_NEAR(one.project.PipeEqLength[1], length, 1e-5F) << what;
  }
}

// A fitting's length is that of Schedule 40 pipe, times the ratio of the bores to the power 4.87.
TEST(EquivalentLengthTest, CorrectsForABoreOtherThanSchedule40) {
  const std::pair<float, float> cases[] = {
      {52.5F, 1.0569F}, {45.0F, 1.3F}, {60.0F, 0.7F}, {53.1F, 1.0F}, {1.0F, 1.0F}};
  for (const auto& [bore, factor] : cases) {
    OnePipe one;
    one.project.Schedule40Type = 2;
    one.project.PipeBores[kSize50][2] = bore;
    EquivalentLength(one.project, 1, kSize50);
    EXPECT_NEAR(one.project.PipeEqLength[1], 10.0F + 3.0F * factor, 1e-3F);
  }
}

// f L/d rho v2/2, with v from the flow and the bore of 53.1 mm.
double DarcyLossOf(double f, double flow, double length) {
  const double d = 0.0531;
  const double velocity = flow / 60000.0 / (std::numbers::pi * d * d / 4.0);
  return f * length / d * 998.0 * velocity * velocity / 2.0 / 1e5;
}

TEST(PipeDropTest, FollowsTheFlow) {
  struct Case {
    const char *what, *fluid;
    float roughness, flow, orifice, added_drop;
    double drop;
  };
  const double loss = LossOf(300.0, 53.1, 13.0);
  // Re = 4 rho Q / (pi d mu) is 125950 at 300 L/min and 0.95 cP.
  const Case cases[] = {
      {"Hazen-Williams", "Water", 0.046F, 300, 0, 0, loss},
      {"backward", "Water", 0.046F, -300, 0, 0, -loss},
      {"orifice plate", "Water", 0.046F, -300, 500, 0, -loss - 0.36},
      {"no orifice plate", "Water", 0.046F, 300, 1, 0, loss},
      {"added drop", "Water", 0.046F, -300, 0, 0.25F, -loss - 0.25},
      {"at rest", "Water", 0.046F, 0, 500, 0.25F, 0.0},
      {"heavy fluid", "SG=1.2", 0.046F, 300, 500, 0, 1.2 * (loss + 0.36)},
      {"formula", "DWF", 0.046F, 300, 0, 0, DarcyLossOf(0.02124, 300, 13)},  // e = 8.663E-4
      {"formula, backward", "DWF", 0.046F, -300, 0, 0, -DarcyLossOf(0.02124, 300, 13)},
      {"formula at its least Re", "DWF", 0.046F, 20, 0, 0, DarcyLossOf(0.02446, 20, 13)},
      {"table", "NFPA 750", 0.00531F, 300, 0, 0, DarcyLossOf(0.01820, 300, 13)},  // e = 0.0001
      {"table at its least Re", "NFPA 750", 0.00531F, 5, 0, 0, DarcyLossOf(0.03985, 5, 13)},
      {"table, at rest", "NFPA 750", 0.00531F, 0, 0, 0.25F, 0.0}};
  for (const Case& c : cases) {
    OnePipe one;
    ItemText(one.project, Item::kFluid) = c.fluid;
    ReadFluidSettings(one.project);
    one.project.TypeRoughness[1] = c.roughness;
    one.project.PipeFlow[1] = c.flow;
    one.project.PipeOrifice[1] = c.orifice;
    one.project.PipePressDrop[1] = c.added_drop;
    EquivalentLength(one.project, 1, kSize50);
    PipeDropFromFlow(one.project, 1);
    EXPECT_NEAR(one.project.PipeDrop[1], c.drop, 6e-4 * std::fabs(c.drop)) << c.what;
  }
}

}  // namespace
}  // namespace zeb::test
