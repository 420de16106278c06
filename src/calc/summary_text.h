#pragma once

#include <string>
#include <string_view>

namespace zeb {

// Width and decimals of a number.
struct NumberFormat {
  int width;
  int decimals;
};

inline constexpr NumberFormat kCountColumn{5, 0};
inline constexpr NumberFormat kDensityColumn{8, 2};
inline constexpr NumberFormat kFlowColumn{7, 1};
inline constexpr NumberFormat kPressureColumn{9, 3};
inline constexpr NumberFormat kAreaColumn{9, 3};
inline constexpr NumberFormat kLengthColumn{9, 3};
inline constexpr NumberFormat kVolumeColumn{9, 3};
inline constexpr NumberFormat kVelocityColumn{8, 2};
inline constexpr NumberFormat kGradientColumn{8, 2};
inline constexpr NumberFormat kFineColumn{11, 5};

[[nodiscard]] std::string Fixed(float value, NumberFormat format);

// The summary as it grows, line by line.
class SummaryText {
 public:
  void Line(std::string_view text);
  // A label, which ends with a colon in column 21 and a blank, the number and its unit.
  void Line(std::string_view label, float value, NumberFormat format, std::string_view unit = {});
  // The number of the line above once more, in another unit.
  void SameIn(std::string_view unit, float value, NumberFormat format);
  void PutFirst(std::string_view text);

  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

}  // namespace zeb
