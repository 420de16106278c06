#include "calc/friction_factor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

#include "calc/friction_table.h"

namespace zeb::test {
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

}  // namespace
}  // namespace zeb::test
