#include "calc/supply_curve.h"

#include <gtest/gtest.h>

#include <string>

#include "made_network.h"

namespace zeb {
namespace {

using test::MadeNetwork;

TEST(SupplyCurveTest, SelectsByName) {
  struct Case {
    std::string text;
    int row;
  };
  const Case cases[] = {{" Pump", 2}, {"None", 0}, {"pump", 1}, {"Nonesuch main", 0}, {"Low", 0}};
  Project project;
  MadeNetwork network(project);
  network.Supply({0.0F, 6.0F, 1000.0F, 4.0F});
  project.SupplyCount = 4;
  project.SupplyNames[3] = "nonesuch main";
  project.SupplyTable[3] = project.SupplyTable[2];
  project.SupplyNames[4] = "Low";
  project.SupplyTable[4] = {0.0F, 0.5F, 1000.0F, 0.4F};
  for (const Case& c : cases) {
    // Without a match row 1 is in force, whatever it is.
    project.SupplyNames[1] = c.row == 1 ? "Town main" : "None";
    project.SupplyTable[1] = c.row == 1 ? project.SupplyTable[2] : SupplyValues{};
    ItemText(project, Item::kSupply) = c.text;
    SelectSupply(project);
    EXPECT_EQ(project.PumpCurveIndex, c.row) << c.text;
  }
}

TEST(SupplyCurveTest, ReadsThePressureOffTheCurve) {
  struct Case {
    const char* what;
    float flow;
    float pressure;
    int off;
  };
  const Case cases[] = {
      {"no flow", 0.0F, 6.0F, 0},           {"between points", 650.0F, 5.375F, 0},
      {"on a point", 1000.0F, 5.0F, 0},     {"on the next line", 1100.0F, 4.5F, 0},
      {"at the end", 1200.0F, 4.0F, 0},     {"backward, on the first line", -200.0F, 6.166667F, 0},
      {"behind the end", 1200.1F, 4.0F, 1},
  };
  Project project;
  MadeNetwork network(project);
  network.Supply({0.0F, 6.0F, 300.0F, 5.75F, 1000.0F, 5.0F, 1200.0F, 4.0F}, 5.0F);
  SelectSupply(project);
  for (const Case& c : cases) {
    project.OffCurve = 0;
    EXPECT_NEAR(SupplyPressureAt(project, c.flow), c.pressure + 0.5F, 1e-5F) << c.what;
    EXPECT_EQ(project.OffCurve, c.off) << c.what;
  }
}

TEST(SupplyCurveTest, TakesTheLastPointBelowATenthOfABar) {
  Project project;
  MadeNetwork network(project);
  network.Supply({0.0F, 1.0F, 1000.0F, 0.0F});
  SelectSupply(project);
  EXPECT_NEAR(SupplyPressureAt(project, 900.0F), 0.1F, 1e-5F);
  EXPECT_EQ(project.OffCurve, 0);
  project.SupplyTable[2][15] = 0.7F;
  EXPECT_EQ(SupplyPressureAt(project, 901.0F), 0.7F);
  EXPECT_EQ(project.OffCurve, 1);
}

}  // namespace
}  // namespace zeb
