// What a pipe loses, and the fluid and the friction behind it.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <tuple>
#include <utility>

#include "calc/fluid.h"
#include "calc/friction_factor.h"
#include "calc/friction_table.h"
#include "calc/pressure_loss.h"
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

// The implicit equation of Colebrook and White, solved by iteration.
double ColebrookFactor(double relative_roughness, double reynolds) {
  double root = 7.0;  // 1 / sqrt(f)
  for (int i = 0; i < 100; ++i) {
    root = -2.0 * std::log10(relative_roughness / 3.7 + 2.51 * root / reynolds);
  }
  return 1.0 / (root * root);
}

TEST(FrictionFactorTest, AgreesWithColebrook) {
  for (const double roughness : {0.0, 1e-5, 1e-4, 1e-3, 1e-2}) {
    for (const double reynolds : {4e4, 1e5, 1e6, 1e7}) {
      const double ratio =
          FrictionFactor(roughness, reynolds) / ColebrookFactor(roughness, reynolds);
      EXPECT_NEAR(ratio, 1.0, 5e-5) << roughness << ' ' << reynolds;
    }
  }
}

TEST(FrictionTableTest, InterpolatesBetweenFourCells) {
  const std::tuple<const char*, double, double, double> cases[] = {
      {"a cell itself", 4e-5, 4e5, 0.0142},
      {"the middle of four cells", 3e-5, 3e5, (0.01565 + 0.0141) / 2.0},
      {"the lowest Reynolds number", 4e-5, 4100.0, 0.0400 - 0.0090 * 100.0 / 6000.0},
      {"rougher than the last column", 4e-4, 1e6, 0.0136 + 3.0 * 0.0011},
      {"faster than the last row", 1e-5, 1.9e8, 0.0080 - 0.0010},
      {"smoother than the first column", 0.5e-8, 2e5, (200000.0 + 0.0155) / 2.0}};
  for (const auto& [what, roughness, reynolds, factor] : cases) {
    EXPECT_NEAR(MoodyTable().Interpolate(roughness, reynolds) / factor, 1.0, 1e-6) << what;
  }
}

TEST(FluidTest, TakesTheSettingsFromTheFluidText) {
  struct Case {
    std::string fluid;
    int model;
    float density, viscosity, sg;
    int dry, from_pipe;
  };
  const Case cases[] = {
      {"NFPA 750", kDarcyByTable, 998.0F, 0.95F, 1.0F, 0, 0},
      {"DWF dens=999.7 VISC=1.3 750", kDarcyByFormula, 999.7F, 1.3F, 1.0F, 0, 0},
      {"dwf foam sg=1.06", kHazenWilliams, 998.0F, 0.95F, 1.06F, 0, 0},
      {"Dry #12 SG=.98 SG=2", kHazenWilliams, 998.0F, 0.95F, 0.98F, 1, 12},
      {"SG 1.1", kHazenWilliams, 998.0F, 0.95F, 1.0F, 0, 0},      // no sign of assignment
      {"SGX SG=1.1", kHazenWilliams, 998.0F, 0.95F, 1.0F, 0, 0},  // none in the first word
      {"SG=1.1kg", kHazenWilliams, 998.0F, 0.95F, 1.0F, 0, 0},    // no number
      {"SG= 1.1", kHazenWilliams, 998.0F, 0.95F, 0.0F, 0, 0}};    // nothing is 0
  for (const Case& c : cases) {
    Project project;
    ItemText(project, Item::kFluid) = c.fluid;
    ReadFluidSettings(project);
    EXPECT_EQ(project.LossModel, c.model) << c.fluid;
    EXPECT_EQ(project.FluidDensity, c.density) << c.fluid;
    EXPECT_EQ(project.FluidViscosity, c.viscosity) << c.fluid;
    EXPECT_EQ(project.FluidSG, c.sg) << c.fluid;
    EXPECT_EQ(project.DrySystem, c.dry) << c.fluid;
    EXPECT_EQ(project.DryFromPipe, c.from_pipe) << c.fluid;
  }
}

}  // namespace
}  // namespace zeb::test
