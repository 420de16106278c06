#include "calc/fluid.h"

#include <gtest/gtest.h>

#include <string>

namespace zeb::test {
namespace {

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
