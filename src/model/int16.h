#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <utility>

#include "model/failure.h"

namespace zeb {

// A signed 16-bit integer. A value that does not fit raises the overflow failure; reading it gives
// a plain int, so arithmetic is done in int and checked when it is stored.
class Int16 {
 public:
  constexpr Int16() noexcept = default;
  template <std::integral T>
  constexpr Int16(T value) : value_(Narrow(value)) {}  // NOLINT(google-explicit-constructor)
  // A real must be rounded first, see RoundToInt16.
  template <std::floating_point T>
  Int16(T value) = delete;

  constexpr operator int() const noexcept { return value_; }  // NOLINT(google-explicit-constructor)

  constexpr Int16& operator+=(int step) { return *this = Int16(value_ + step); }
  constexpr Int16& operator-=(int step) { return *this = Int16(value_ - step); }
  constexpr Int16& operator++() { return *this += 1; }
  constexpr Int16& operator--() { return *this -= 1; }

 private:
  template <std::integral T>
  static constexpr std::int16_t Narrow(T value) {
    if (!std::in_range<std::int16_t>(value)) throw RuntimeFailure(failure::kOverflow);
    return static_cast<std::int16_t>(value);
  }

  std::int16_t value_ = 0;
};

// Rounds half to even. Fails with overflow beyond 16 bits and for NaN.
[[nodiscard]] inline Int16 RoundToInt16(double value) {
  const double rounded = std::nearbyint(value);
  if (!(rounded >= INT16_MIN && rounded <= INT16_MAX)) throw RuntimeFailure(failure::kOverflow);
  return {static_cast<int>(rounded)};
}

}  // namespace zeb
