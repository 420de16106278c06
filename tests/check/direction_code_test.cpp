#include "check/direction_code.h"

#include <gtest/gtest.h>

#include <tuple>

namespace zeb::test {
namespace {

TEST(DirectionCode, ReadsWords) {
  const std::tuple<const char*, bool, float, float> cases[] = {
      {"N", true, 0, 0},           {"NORTH", true, 0, 0},        {"NE", true, 45, 0},
      {"EAST-WIND", true, 90, 0},  {"SE", true, 135, 0},         {"S@12.5", true, 180, 12.5F},
      {"SW", true, 225, 0},        {"W@-2.5", true, 270, -2.5F}, {"NW", true, 315, 0},
      {"UP", true, 999, 0},        {"D", true, -999, 0},         {"DOWNWARD", true, -999, 0},
      {"DN", false, 0, 0},         {"D@5", false, 0, 0},         {"NORTH-EAST", true, 0, 0},
      {"SOUTHEAST", true, 180, 0}, {"*64@5", true, 64, 5},       {"*0", true, 0, 0},
      {"*360", true, 360, 0},      {"*400", true, 0, 0},         {"*-10", true, 0, 0},
      {"N@90", true, 0, 90},       {"N@-90.1", true, 0, 0},      {"@5", false, 0, 0},
      {"", false, 0, 0},           {"X@5", false, 0, 0},         {"\tN", false, 0, 0}};
  for (const auto& [word, is_direction, direction, slope] : cases) {
    SCOPED_TRACE(word);
    DirectionCode code;
    EXPECT_EQ(ParseDirection(word, code), is_direction);
    EXPECT_EQ(code.direction, direction);
    EXPECT_EQ(code.slope, slope);
  }
}

TEST(DirectionCode, WritesByWholeDegrees) {
  const std::tuple<float, float, const char*> cases[] = {{0, 0, "N"},
                                                         {360, 0, "N"},
                                                         {44.6F, 0, "NE"},
                                                         {44.5F, 0, "*44.5"},
                                                         {45.5F, 0, "*45.5"},
                                                         {134.5F, 0, "*134.5"},
                                                         {270, -2.5F, "W@-2.50"},
                                                         {64, 5, "*64.0@5.00"},
                                                         {999, 5, "U"},
                                                         {-999, 0, "D"},
                                                         {123.44F, -12.345F, "*123.4@-12.35"}};
  for (const auto& [direction, slope, text] : cases) {
    EXPECT_EQ(DirectionText(direction, slope), text);
  }
}

}  // namespace
}  // namespace zeb::test
