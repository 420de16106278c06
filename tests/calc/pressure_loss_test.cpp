#include "calc/pressure_loss.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <numbers>

#include "calc/fluid.h"
#include "made_network.h"
#include "support/failure_of.h"

namespace zeb {
namespace {

using test::LossOf;
using test::MadeNetwork;

constexpr int kSize50 = 3;
constexpr int kSize350 = 6;

// A pipe of 10 m in DN 50.
struct OnePipe {
  OnePipe() { pipe = MadeNetwork(project).Pipe(1, 2, kSize50, 10.0F); }

  Project project;
  int pipe = 0;
};

TEST(EquivalentLengthTest, AddsUpWhatThePipeHolds) {
  struct Case {
    const char* what;
    std::function<void(Project&)> set;
    int size;
    float length;
  };
  const Case cases[] = {
      {"nothing", [](Project&) {}, kSize50, 10.0F},
      {"screwed elbows, tee, valve",
       [](Project& p) {
         p.PipeElbows[1] = 2;
         p.PipeTees[1] = 1;
         p.PipeValve[1] = 5;
       },
       kSize50, 10.0F + 2.0F + 3.0F + 2.0F},
      {"welded from the size itself up",
       [](Project& p) {
         p.PipeElbows[1] = 2;
         p.WeldSize = 50;
       },
       kSize50, 10.0F + 1.0F},
      {"added length and joints",
       [](Project& p) {
         p.PipeAddLength[1] = 2.5F;
         p.PipeVJ[1] = 4;
       },
       kSize50, 10.0F + 2.5F + 1.2F},
      {"the type's factor on fittings alone",
       [](Project& p) {
         p.PipeTees[1] = 1;
         p.PipeAddLength[1] = 1.0F;
         p.TypeFittingFactor[1] = 1.33F;
       },
       kSize50, 11.0F + 3.0F * 1.33F},
      {"large sizes by their nominal",
       [](Project& p) {
         p.PipeElbows[1] = 1;
         p.PipeTees[1] = 1;
         p.PipeSize[1] = 350;
       },
       kSize350, 10.0F + 0.0134F * 350.0F + 0.06F * 350.0F},
      {"301 mm by the table",
       [](Project& p) {
         p.PipeTees[1] = 1;
         p.PipeSize[1] = 301;
       },
       kSize350, 13.0F},
      {"large sizes by the table under other rules",
       [](Project& p) {
         p.PipeTees[1] = 1;
         p.PipeSize[1] = 350;
         p.RuleType = 3;
       },
       kSize350, 13.0F},
      {"dry pipe", [](Project& p) { p.PipeTees[1] = 1, p.DrySystem = 1; }, kSize50,
       10.0F + 3.0F * 0.714F},
      {"dry from a later pipe",
       [](Project& p) { p.PipeTees[1] = 1, p.DrySystem = 1, p.DryFromPipe = 2; }, kSize50, 13.0F},
  };
  for (const Case& c : cases) {
    OnePipe one;
    c.set(one.project);
    EquivalentLength(one.project, one.pipe, c.size);
    EXPECT_NEAR(one.project.PipeEqLength[one.pipe], c.length, 1e-5F) << c.what;
  }
}

// A fitting's length is that of Schedule 40 pipe, times the ratio of the bores to the power 4.87.
TEST(EquivalentLengthTest, CorrectsForABoreOtherThanSchedule40) {
  struct Case {
    float schedule40_bore;
    float factor;
  };
  const Case cases[] = {
      {52.5F, 1.0569F}, {45.0F, 1.3F}, {60.0F, 0.7F}, {53.1F, 1.0F}, {1.0F, 1.0F}};
  for (const Case& c : cases) {
    OnePipe one;
    one.project.PipeTees[one.pipe] = 1;
    one.project.Schedule40Type = 2;
    one.project.PipeBores[kSize50][2] = c.schedule40_bore;
    EquivalentLength(one.project, one.pipe, kSize50);
    EXPECT_NEAR(one.project.PipeEqLength[one.pipe], 10.0F + 3.0F * c.factor, 1e-3F);
  }
}

TEST(EquivalentLengthTest, PreparesTheCoefficient) {
  OnePipe one;
  one.project.FluidSG = 1.2F;
  EquivalentLength(one.project, one.pipe, kSize50);
  // 1.2 x 10 x 605000 / 120^1.85 / 53.1^4.87
  EXPECT_NEAR(one.project.PipeStartPressure[one.pipe], 4.104318e-6F, 1e-12F);
  // A dry system is rougher: 120^1.85 / 100^1.85 = 1.40115.
  one.project.DrySystem = 1;
  EquivalentLength(one.project, one.pipe, kSize50);
  EXPECT_NEAR(one.project.PipeStartPressure[one.pipe], 1.40115F * 4.104318e-6F, 1e-10F);
  EXPECT_EQ(test::FailureOf([&] { EquivalentLength(one.project, one.pipe, 0); }), 11);
}

TEST(PipeDropTest, FollowsTheFlow) {
  struct Case {
    const char* what;
    float flow;
    float orifice;
    float added_drop;
    double drop;
  };
  const double loss = LossOf(300.0, 53.1, 10.0);
  ASSERT_NEAR(loss, 0.13084, 1e-5);
  const Case cases[] = {
      {"forward", 300.0F, 0.0F, 0.0F, loss},
      {"backward", -300.0F, 0.0F, 0.0F, -loss},
      {"orifice plate", 300.0F, 500.0F, 0.0F, loss + 0.36},
      {"orifice plate backward", -300.0F, 500.0F, 0.0F, -(loss + 0.36)},
      {"no orifice plate", 300.0F, 1.0F, 0.0F, loss},
      {"added drop", 300.0F, 0.0F, 0.25F, loss + 0.25},
      {"added drop backward", -300.0F, 0.0F, 0.25F, -(loss + 0.25)},
      {"added drop at rest", 0.0F, 500.0F, 0.25F, 0.0},
  };
  OnePipe one;
  EquivalentLength(one.project, one.pipe, kSize50);
  for (const Case& c : cases) {
    one.project.PipeFlow[one.pipe] = c.flow;
    one.project.PipeOrifice[one.pipe] = c.orifice;
    one.project.PipePressDrop[one.pipe] = c.added_drop;
    PipeDropFromFlow(one.project, one.pipe);
    EXPECT_NEAR(one.project.PipeDrop[one.pipe], c.drop, 1e-6) << c.what;
    const bool plate = c.orifice > 1.0F && c.flow != 0.0F;
    EXPECT_NEAR(one.project.PipeOrificeDrop[one.pipe], plate ? 0.36F : 0.0F, 1e-6F) << c.what;
  }
}

// f L/d rho v2/2, with v from the flow and the bore.
double DarcyLossOf(double f, double flow, double bore, double length, double density) {
  const double d = bore / 1000.0;
  const double velocity = flow / 60000.0 / (std::numbers::pi * d * d / 4.0);
  return f * length / d * density * velocity * velocity / 2.0 / 1e5;
}

TEST(PipeDropTest, FollowsDarcyAndWeisbach) {
  struct Case {
    const char* fluid;
    float roughness;
    float flow;
    double factor;
  };
  // Re = 4 rho Q / (pi d mu): 125950 at 300 L/min and 0.95 cP, limited from below at 20 L/min.
  const Case cases[] = {
      {"DWF DENS=998 VISC=0.95", 0.046F, 300.0F, 0.02124},  // Colebrook, e = 8.663E-4
      {"DWF DENS=998 VISC=0.95", 0.046F, -300.0F, 0.02124},
      {"DWF DENS=998 VISC=0.95", 0.046F, 20.0F, 0.02446},   // as at Re 40000
      {"NFPA 750", 0.00531F, 300.0F, 0.01820},              // e = 0.0001
      {"NFPA 750", 0.00531F, 5.0F, 0.0400 - 0.009 / 60.0},  // as at Re 4100
      {"NFPA 750", 0.046F, 0.0F, 0.0},
  };
  for (const Case& c : cases) {
    OnePipe one;
    ItemText(one.project, Item::kFluid) = c.fluid;
    ReadFluidSettings(one.project);
    one.project.TypeRoughness[1] = c.roughness;
    EquivalentLength(one.project, one.pipe, kSize50);
    one.project.PipeFlow[one.pipe] = c.flow;
    PipeDropFromFlow(one.project, one.pipe);
    const double expected = std::copysign(DarcyLossOf(c.factor, c.flow, 53.1, 10.0, 998.0), c.flow);
    EXPECT_NEAR(one.project.PipeDrop[one.pipe], expected, 1e-3 * std::fabs(expected)) << c.flow;
  }
}

TEST(PipeDropTest, VelocityAndGradient) {
  // 300 L/min is 0.005 m3/s on 0.0022145 m2.
  EXPECT_NEAR(PipeVelocityOf(-300.0, 53.1), 2.2578, 3e-4);
  EXPECT_NEAR(PressureGradient(-0.13, 9.999), 13.0, 1e-9);
}

}  // namespace
}  // namespace zeb
