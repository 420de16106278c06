#pragma once

#include <string>
#include <string_view>

namespace zeb {

struct DirectionCode {
  float direction = 0.0F;  // degrees clockwise from north; 999 up, -999 down
  float slope = 0.0F;      // degrees, up positive, -90 to 90
};

// Reads the direction word of a pipe line, in upper case: a compass point, "U", "D" or "*" with an
// angle, then "@" with a slope where there is one. Angles out of range count as 0. False when the
// word is no direction; the result is then north and level.
[[nodiscard]] bool ParseDirection(std::string_view word, DirectionCode& code);

// The word for a direction, by its whole degrees, and a slope; vertical directions have no slope.
[[nodiscard]] std::string DirectionText(float direction, float slope);

[[nodiscard]] bool IsVertical(float direction);

}  // namespace zeb
