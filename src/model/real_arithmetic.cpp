#include "model/real_arithmetic.h"

#include <cfenv>
#include <cfloat>
#include <cmath>

#include "model/failure.h"

namespace zeb {

void ClearRealArithmeticFlags() noexcept { std::feclearexcept(FE_ALL_EXCEPT); }

void CheckRealArithmeticFlags() {
  if (std::fetestexcept(FE_DIVBYZERO) != 0) throw RuntimeFailure(failure::kDivisionByZero);
  if (std::fetestexcept(FE_OVERFLOW) != 0) throw RuntimeFailure(failure::kOverflow);
  if (std::fetestexcept(FE_INVALID) != 0) throw RuntimeFailure(failure::kInvalidProcedureCall);
}

float RoundToSingle(double value) {
  if (!(std::abs(value) <= FLT_MAX)) throw RuntimeFailure(failure::kOverflow);
  return static_cast<float>(value);
}

}  // namespace zeb
