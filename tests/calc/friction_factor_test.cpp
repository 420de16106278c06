#include "calc/friction_factor.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calc/friction_table.h"

namespace zeb {
namespace {

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
      const double expected = ColebrookFactor(roughness, reynolds);
      EXPECT_NEAR(FrictionFactor(roughness, reynolds), expected, 5e-5 * expected)
          << roughness << ' ' << reynolds;
    }
  }
}

TEST(FrictionTableTest, InterpolatesBetweenFourCells) {
  struct Case {
    const char* what;
    double roughness;
    double reynolds;
    double factor;
  };
  const Case cases[] = {
      {"a cell itself", 4e-5, 4e5, 0.0142},
      {"the middle of four cells", 3e-5, 3e5, (0.01565 + 0.0141) / 2.0},
      {"a tenth of the way along a row", 1.1e-5, 2e6, 0.0106 + 0.1 * 0.0004},
      {"the lowest Reynolds number", 4e-5, 4100.0, 0.0400 - 0.0090 * 100.0 / 6000.0},
      {"rougher than the last column", 4e-4, 1e6, 0.0136 + 3.0 * 0.0011},
      {"faster than the last row", 2e-4, 5e8, 0.0138},
      {"faster than the last row, smooth", 1e-5, 1.9e8, 0.0080 - 0.0010},
      {"smoother than the first column", 0.5e-8, 2e5, (200000.0 + 0.0155) / 2.0},
  };
  for (const Case& c : cases) {
    EXPECT_NEAR(MoodyTable().Interpolate(c.roughness, c.reynolds), c.factor,
                1e-6 * (1.0 + c.factor))
        << c.what;
  }
}

// The table is read off the diagram of the same equation, to within a few per cent.
TEST(FrictionTableTest, LiesNearColebrook) {
  for (int row = 4; row <= FrictionTable::kRows - 1; ++row) {
    for (int column = 2; column <= FrictionTable::kColumns; ++column) {
      const double expected = ColebrookFactor(MoodyTable().At(0, column), MoodyTable().At(row, 0));
      EXPECT_NEAR(MoodyTable().At(row, column) / expected, 1.0, 0.06) << row << ' ' << column;
    }
  }
}

}  // namespace
}  // namespace zeb
