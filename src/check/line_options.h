#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "model/int16.h"

namespace zeb {

// The options of a pipe line: two letters with a value behind them.
enum class LineOption {
  kOrifice,     // OP, K of an orifice plate
  kPressDrop,   // PD, bar
  kAddLength,   // AL, m
  kElbows,      // AE
  kTees,        // AT
  kJoints,      // VJ
  kHydrant,     // HY, L/min
  kDensity,     // DD, mm/min
  kAddBuilding  // AB, three words: L/min, bar, m2
};

// Finds the options anywhere in a line in upper case, also within other words; the first
// occurrence of each counts. Refers to the line.
class LineOptions {
 public:
  explicit LineOptions(std::string_view line);

  [[nodiscard]] bool Has(LineOption option) const { return Start(option) != kAbsent; }
  // The text behind the letters, empty without the option.
  [[nodiscard]] std::string_view Behind(LineOption option) const;
  // The value, 0 without the option; fails with overflow beyond a single or 16 bits.
  [[nodiscard]] float Single(LineOption option) const;
  [[nodiscard]] Int16 Integer(LineOption option) const;

 private:
  static constexpr std::size_t kCount = 9;
  static constexpr std::size_t kAbsent = std::string_view::npos;

  [[nodiscard]] std::size_t Start(LineOption option) const {
    return starts_[static_cast<std::size_t>(option)];
  }
  void NoteCodeAt(std::size_t start);

  std::string_view line_;
  std::array<std::size_t, kCount> starts_{};
};

}  // namespace zeb
