#include "calc/fluid.h"

#include <gtest/gtest.h>

#include <string>

namespace zeb {
namespace {

TEST(FluidTest, ReadsAValueFromTheFirstWordThatHoldsTheKeyword) {
  struct Case {
    std::string text;
    double value;
  };
  const Case cases[] = {
      {"", 1.0},
      {"Water", 1.0},
      {"Foam sg=1.06 mix", 1.06},
      {"SG=.98", 0.98},     // a zero is put in front
      {"SG 1.1", 1.0},      // no sign of assignment
      {"SGX SG=1.1", 1.0},  // the first word with the keyword has none
      {"SG=1.1kg", 1.0},    // no number
      {"SG=-1", 1.0},       // "0-1" is no number
      {"SG= 1.1", 0.0},     // nothing behind the sign
      {"A SG=1.2 SG=1.3", 1.2},
  };
  for (const Case& c : cases)
    EXPECT_DOUBLE_EQ(ReadCommentValue("SG", c.text, 1.0), c.value) << c.text;
}

TEST(FluidTest, TakesTheLossEquationFromTheFluidText) {
  struct Case {
    std::string fluid;
    int model;
    float density;
    float viscosity;
    int dry;
    int from_pipe;
  };
  const Case cases[] = {
      {"Water", kHazenWilliams, 998.0F, 0.95F, 0, 0},
      {"NFPA 750", kDarcyByTable, 998.0F, 0.95F, 0, 0},
      {"DWF DENS=999.7 VISC=1.3", kDarcyByFormula, 999.7F, 1.3F, 0, 0},
      {"DWF dens=750 visc=2", kDarcyByFormula, 750.0F, 2.0F, 0, 0},
      {"dwf", kHazenWilliams, 998.0F, 0.95F, 0, 0},
      {"Dry", kHazenWilliams, 998.0F, 0.95F, 1, 0},
      {"DRY #12", kHazenWilliams, 998.0F, 0.95F, 1, 12},
  };
  for (const Case& c : cases) {
    Project project;
    ItemText(project, Item::kFluid) = c.fluid;
    ReadFluidSettings(project);
    EXPECT_EQ(project.LossModel, c.model) << c.fluid;
    EXPECT_EQ(project.FluidDensity, c.density) << c.fluid;
    EXPECT_EQ(project.FluidViscosity, c.viscosity) << c.fluid;
    EXPECT_EQ(project.DrySystem, c.dry) << c.fluid;
    EXPECT_EQ(project.DryFromPipe, c.from_pipe) << c.fluid;
  }
}

TEST(FluidTest, ReadsTheJointLengthFromTheComments) {
  Project project;
  ReadFluidSettings(project);
  EXPECT_EQ(project.VJ, 0.3F);
  ItemText(project, Item::kComments) = "Grooved vj=0.45 RF=0.7";
  ReadFluidSettings(project);
  EXPECT_EQ(project.VJ, 0.45F);
}

}  // namespace
}  // namespace zeb
