#include "calc/supply_curve.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>

#include "made_network.h"

namespace zeb::test {
namespace {

TEST(SupplyCurveTest, SelectsByName) {
  Project project;
  MadeNetwork network(project);
  network.Supply({0.0F, 6.0F, 1000.0F, 4.0F});
  project.SupplyCount = 4;
  project.SupplyNames[3] = "nonesuch main";
  project.SupplyTable[3] = project.SupplyTable[2];
  project.SupplyNames[4] = "Low";
  project.SupplyTable[4] = {0.0F, 0.5F};
  const std::pair<std::string, int> cases[] = {
      {" Pump", 2}, {"None", 0}, {"pump", 0}, {"nonesuch main", 0}, {"Low", 0}};
  for (const auto& [text, row] : cases) {
    ItemText(project, Item::kSupply) = text;
    SelectSupply(project);
    EXPECT_EQ(project.PumpCurveIndex, row) << text;
  }
  // Without a match row 1 is in force, whatever it is.
  project.SupplyNames[1] = "Town main";
  project.SupplyTable[1] = project.SupplyTable[2];
  ItemText(project, Item::kSupply) = "None";
  SelectSupply(project);
  EXPECT_EQ(project.PumpCurveIndex, 1);
}

TEST(SupplyCurveTest, ReadsThePressureOffTheCurve) {
  Project project;
  MadeNetwork network(project);
  network.Supply({0.0F, 6.0F, 300.0F, 5.75F, 1000.0F, 5.0F, 1200.0F, 0.0F}, 5.0F);
  project.SupplyTable[2][15] = 0.7F;  // of the last point, which stands for all flows beyond
  SelectSupply(project);
  const std::tuple<const char*, float, float, int> cases[] = {
      {"no flow", 0.0F, 6.0F, 0},          {"between points", 650.0F, 5.375F, 0},
      {"on a point", 1000.0F, 5.0F, 0},    {"near the end", 1160.0F, 1.0F, 0},
      {"under 0.1 bar", 1197.0F, 0.7F, 1}, {"behind the end", 1200.1F, 0.7F, 1},
      {"backward", -200.0F, 6.166667F, 0}};
  for (const auto& [what, flow, pressure, off] : cases) {
    project.OffCurve = 0;
    EXPECT_NEAR(SupplyPressureAt(project, flow), pressure + 0.5F, 1e-4F) << what;
    EXPECT_EQ(project.OffCurve, off) << what;
  }
}

}  // namespace
}  // namespace zeb::test
