#include "calc/friction_factor.h"

#include <cmath>

namespace zeb {

double FrictionFactor(double relative_roughness, double reynolds) {
  constexpr double kTwoOverLn10 = 0.86858896;
  const double rough = relative_roughness / 3.7;
  const double a = -kTwoOverLn10 * std::log(rough + 12.0 / reynolds);
  const double b = -kTwoOverLn10 * std::log(rough + 2.51 * a / reynolds);
  const double c = -kTwoOverLn10 * std::log(rough + 2.51 * b / reynolds);
  const double root = a - (b - a) * (b - a) / (c - 2.0 * b + a);
  return 1.0 / (root * root);
}

}  // namespace zeb
