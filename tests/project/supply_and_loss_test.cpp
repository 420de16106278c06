// The editors of water supplies and of the pressure loss.
#include <gtest/gtest.h>

#include <string>

#include "project/pressure_loss_form.h"
#include "project/project_items.h"
#include "project/supplies.h"
#include "support/slots.h"
#include "support/test_session.h"

namespace zeb::test {
namespace {

struct Supplies : testing::Test, TestSession {
  Supplies() {
    project.SupplyCount = 2;
    project.SupplyNames[1] = "None";
    project.SupplyNames[2] = "Town main at the northern gate";
    project.SupplyTable[2] = {0, 5.5F, 1000, 4.25F};
  }

  void Add(const std::string& reference) {
    editor.cmdPumpAdd_Click();
    editor.Reference = reference;
    editor.cmbPumpSave_Click();
  }

  SupplyEditor editor{session};
};

TEST_F(Supplies, AreFoundByTheirFirst26Characters) {
  EXPECT_EQ(FindSupply(project, "TOWN MAIN AT THE NORTHERN fence"), 2);
  EXPECT_EQ(FindSupply(project, " none"), 1);
  EXPECT_EQ(FindSupply(project, "Town main"), 0);
}

TEST_F(Supplies, ANameWithoutARowStaysTheProjects) {
  editor.Load("Tank of another user");
  EXPECT_EQ(editor.SelectedRow(), 1);
  EXPECT_EQ(editor.SupplyName, "Tank of another user");
  editor.lstSupply_Click(2);
  EXPECT_EQ(editor.SupplyName, "Town main at the northern gate");
  EXPECT_EQ(editor.Pressures[1], "4.25");
}

TEST_F(Supplies, ANewOneIsStoredAndPicked) {
  editor.Load("None");
  editor.cmdPumpAdd_Click();
  EXPECT_TRUE(editor.Editing());
  editor.Flows = {"0", "1000", "", "", "", "", "", "200000"};
  editor.Pressures = {"6", "-2", "", "", "", "", "", "301"};
  editor.TankHeight = "2.5";

  editor.cmbPumpSave_Click();  // without a reference
  EXPECT_EQ(dialogs.Shown(), (Boxes{{"You have not given a water supply / pump reference!",
                                     "Please ensure you give some text as a reference"}}));
  EXPECT_EQ(project.SupplyCount, 2);

  editor.Reference = "Diesel pump";
  editor.cmbPumpSave_Click();
  EXPECT_EQ(project.SupplyCount, 3);
  const SupplyValues expected = {0, 6, 1000, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 99999, 300, 2.5F};
  EXPECT_EQ(project.SupplyTable[3], expected);
  EXPECT_EQ(editor.SupplyName, "Diesel pump");
  EXPECT_FALSE(editor.Editing());
}

TEST_F(Supplies, TheFirstRowIsNeverEdited) {
  editor.Load("None");
  editor.cmbPumpEdit_Click();
  EXPECT_FALSE(editor.Editing());
  editor.lstSupply_Click(2);
  editor.cmbPumpEdit_Click();
  EXPECT_TRUE(editor.Editing());
  editor.Reference = "Town main 2";
  editor.cmbPumpSave_Click();
  EXPECT_EQ(project.SupplyCount, 2);
  EXPECT_EQ(project.SupplyNames[2], "Town main 2");
}

TEST_F(Supplies, NoRowIsAddedOrOverwrittenWhenTheTableIsFull) {
  project.SupplyCount = 49;
  project.SupplyNames[49] = "The last";
  editor.Load("The last");
  Add("One more");
  EXPECT_EQ(project.SupplyCount, 49);
  EXPECT_EQ(project.SupplyNames[49], "The last");
  EXPECT_EQ(editor.SupplyName, "The last");
  EXPECT_EQ(dialogs.messages.size(), 1U);
}

TEST_F(Supplies, TheFirstOneMadeIsNone) {
  project.SupplyCount = 0;
  project.SupplyNames[1] = "";
  editor.Load("");
  Add("Town main");
  EXPECT_EQ(Slots(project.SupplyNames, 1, 2), (Texts{"None", "Town main"}));
}

TEST_F(Supplies, FlowsAscend) {
  editor.cmdPumpAdd_Click();
  editor.Flows[0] = "-5";
  editor.Flow_LostFocus(0);
  EXPECT_EQ(editor.Flows[0], "0");
  editor.Flows[1] = "1000";
  editor.Flow_LostFocus(1);
  editor.Flow_LostFocus(2);  // left empty
  EXPECT_TRUE(dialogs.messages.empty());
  editor.Flows[2] = "999.5";
  editor.Flow_LostFocus(2);
  EXPECT_EQ(editor.Flows[2], "0");
  editor.Flow_LostFocus(2);  // nothing was entered since
  EXPECT_EQ(dialogs.Shown(),
            (Boxes{{"Flows must be in ascending order",
                    "The flow just entered is less than the previous value of 1000 L/min"}}));
}

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
