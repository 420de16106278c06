#include "model/real_arithmetic.h"

#include <cfenv>

#include "model/failure.h"

namespace zeb {

void ClearRealArithmeticFlags() noexcept { std::feclearexcept(FE_ALL_EXCEPT); }

void CheckRealArithmeticFlags() {
  if (std::fetestexcept(FE_DIVBYZERO) != 0) throw RuntimeFailure(failure::kDivisionByZero);
  if (std::fetestexcept(FE_OVERFLOW) != 0) throw RuntimeFailure(failure::kOverflow);
  if (std::fetestexcept(FE_INVALID) != 0) throw RuntimeFailure(failure::kInvalidProcedureCall);
}

}  // namespace zeb
