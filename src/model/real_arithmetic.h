#pragma once

#include <cfenv>

namespace zeb {

// Real arithmetic fails like integer arithmetic does: a division by zero, an overflow or an invalid
// operation (a root of a negative number) ends the command. The processor only raises flags, so
// a step clears them first and tests them after.
void ClearRealArithmeticFlags() noexcept;

// Raises failure 11 (division by zero), 6 (overflow) or 5 (invalid procedure call) when the flag
// was raised since the last clear.
void CheckRealArithmeticFlags();

// Leaves the flags at its end as they were at its beginning. For calls of libraries in the middle
// of a step, whose own arithmetic, such as the layout of a window, is no failure of the step.
class KeepRealArithmeticFlags {
 public:
  KeepRealArithmeticFlags() noexcept { std::fegetexceptflag(&flags_, FE_ALL_EXCEPT); }
  ~KeepRealArithmeticFlags() { std::fesetexceptflag(&flags_, FE_ALL_EXCEPT); }
  KeepRealArithmeticFlags(const KeepRealArithmeticFlags&) = delete;
  KeepRealArithmeticFlags& operator=(const KeepRealArithmeticFlags&) = delete;

 private:
  std::fexcept_t flags_{};
};

// The nearest single. Fails with overflow beyond its range and for NaN.
[[nodiscard]] float RoundToSingle(double value);

}  // namespace zeb
