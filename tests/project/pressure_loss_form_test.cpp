#include "project/pressure_loss_form.h"

#include <gtest/gtest.h>

#include "project/project_items.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

struct PressureLoss : testing::Test, TestSession {};

TEST_F(PressureLoss, ShowsWhatTheFluidTextSays) {
  struct Case {
    const char *fluid, *equation, *temperature, *density, *after_ok;
  };
  const Case cases[] = {
      {"Water", "Hazen Williams", "", "", "Water"},
      {"FOAM SG=1.1", "Hazen Williams", "", "", "FOAM SG=1.1"},
      {"DWF DENS=998 VISC=0.95", "Darcy-Weisbach", "21.1", "998", "DWF DENS=998 VISC=0.95"},
      {"dwf dens=995.4", "Darcy-Weisbach", "32.2", "995.4", "DWF DENS=995.4 VISC=0.74"},
      {"DWF DENS=1025 VISC=1.2", "Darcy-Weisbach", "", "1025", "DWF DENS=1025 VISC=1.2"},
      {"NFPA 750", "Darcy-Weisbach", "", "", "NFPA 750"},
      {"NFPA 750 DENS=998 VISC=0.95", "Darcy-Weisbach", "21.1", "998",
       "NFPA 750 DENS=998 VISC=0.95"},
  };
  for (const Case& shown : cases) {
    SCOPED_TRACE(shown.fluid);
    PressureLossForm form(session, shown.fluid);
    EXPECT_EQ(form.ComPLE, shown.equation);
    EXPECT_EQ(form.ComWaterTemp, shown.temperature);
    EXPECT_EQ(form.WaterTempEnabled, !form.ComWaterTemp.empty());
    EXPECT_EQ(form.txtDensity, shown.density);
    form.cmdOK_Click();
    EXPECT_EQ(form.Fluid, shown.after_ok);
  }
}

TEST_F(PressureLoss, WritesWhatIsPicked) {
  PressureLossForm back(session, "DWF DENS=998 VISC=0.95");
  back.ComPLE = "Hazen Williams";
  back.ComPLE_Click();
  back.cmdOK_Click();
  EXPECT_EQ(back.Fluid, "Water");

  PressureLossForm form(session, "Water");
  form.ComPLE = "Darcy-Weisbach";
  form.ComPLE_Click();
  EXPECT_EQ(form.ComWaterTemp, "21.1");
  const Texts fluids = {"DWF DENS=999.9 VISC=1.5",  "DWF DENS=999.7 VISC=1.3",
                        "DWF DENS=999.8 VISC=1.1",  "DWF DENS=998.0 VISC=0.95",
                        "DWF DENS=996.6 VISC=0.85", "DWF DENS=995.4 VISC=0.74",
                        "DWF DENS=993.6 VISC=0.66"};
  const Texts temperatures = PressureLossForm::Temperatures();
  ASSERT_EQ(temperatures.size(), fluids.size());
  for (std::size_t i = 0; i < fluids.size(); ++i) {
    form.ComWaterTemp = temperatures[i];
    form.ComWaterTemp_Click();
    form.cmdOK_Click();
    EXPECT_EQ(form.Fluid, fluids[i]);
  }
}

TEST_F(PressureLoss, ANewProjectTakesItsFluidFromTheSettings) {
  EXPECT_EQ(NewProjectFluid(session), "Water");
  session.settings.SetIniValue("ProjData", "PLF", "Darcy-Weisbach");
  EXPECT_EQ(NewProjectFluid(session), "DWF DENS=998.0 VISC=0.95");
  session.settings.SetIniValue("ProjData", "DWTemp", "15.6");
  EXPECT_EQ(NewProjectFluid(session), "DWF DENS=998.8 VISC=1.1");
  session.settings.SetIniValue("ProjData", "DWTemp", "32.2");
  EXPECT_EQ(NewProjectFluid(session), "DWF DENS=995.4 VISC=0.76");
}

}  // namespace
}  // namespace zeb::test
