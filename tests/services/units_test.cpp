#include "services/units.h"

#include <gtest/gtest.h>

namespace zeb::test {
namespace {

TEST(UnitsTest, ShowsValuesInTheChosenUnit) {
  const struct {
    int unit;
    const char *pressure, *pressure_unit, *flow, *flow_unit;
  } cases[] = {{1, "1.500", "bar", "100.00", "L/min"},
               {2, "150", "Kpa", "6000", "L/sec"},
               {3, "22", "psi", "1585.0", "US gal/min"},  // 21.75 and 1585
               {0, "", "", "", ""},
               {4, "", "", "", ""}};
  Units units;
  EXPECT_EQ(units.PressureUnit(), "bar");
  for (const auto& c : cases) {
    units.SetPressureUnit(c.unit);
    units.SetFlowUnit(c.unit);
    EXPECT_EQ(units.FormatPressure(1.5F), c.pressure);
    EXPECT_EQ(units.PressureUnit(), c.pressure_unit);
    EXPECT_EQ(units.FormatFlow(100.0F), c.flow);
    EXPECT_EQ(units.FlowUnit(), c.flow_unit);
  }
}

}  // namespace
}  // namespace zeb::test
