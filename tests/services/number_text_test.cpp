// Numbers as texts, and back.
#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <string>
#include <tuple>
#include <utility>

#include "services/number_text.h"
#include "services/units.h"
#include "support/failure_of.h"

namespace zeb::test {
namespace {

TEST(ValTest, ReadsTheLongestNumberPrefix) {
  const std::pair<const char*, double> cases[] = {
      {"", 0.0},         {"  12.5mm", 12.5},
      {"+3", 3.0},       {"-.5", -0.5},
      {"1 2", 1.0},      {"\t7", 0.0},
      {"- 5", 0.0},      {".", 0.0},
      {"-", 0.0},        {"5.", 5.0},
      {"1.5E2x", 150.0}, {"2e-1", 0.2},
      {"2E", 2.0},       {"2E+", 2.0},
      {"1D3", 1.0},      {"0x10", 0.0},
      {"&H10", 0.0},     {"1,5", 1.0},
      {"1.2.3", 1.2},    {".E5", 0.0},
      {"1e-400", 0.0},   {"0e999999999999", 0.0},
      {"-0", 0.0},       {"inf", 0.0},
  };
  for (const auto& [text, value] : cases) EXPECT_EQ(Val(text), value) << text;
  EXPECT_FALSE(std::signbit(Val("-0")));
}

TEST(ValTest, FailsOnlyWhenTheNumberIsTooLarge) {
  const std::string zeros(400, '0');
  for (const std::string& huge : {std::string("1e309"), "-1" + zeros, "1" + zeros + "e-5",
                                  "0." + zeros + "1e800", std::string("1e99999999999999999999")}) {
    EXPECT_EQ(FailureOf([&] { return Val(huge); }), 6) << huge;
  }
  EXPECT_EQ(Val("0." + zeros + "1"), 0.0);
  EXPECT_EQ(Val("1e-99999999999999999999"), 0.0);
  EXPECT_DOUBLE_EQ(Val("1" + zeros + "e-400"), 1.0);
}

TEST(ValTest, DoesNotFollowTheMachinesLocale) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "de_DE.UTF-8");
  EXPECT_EQ(Val("1.5"), 1.5);
  EXPECT_EQ(FormatDecimals(1.5, 2), "1.50");
  EXPECT_EQ(SignedText(1.5F), " 1.5");
  std::setlocale(LC_ALL, before.c_str());
}

TEST(ValTest, RoundsHalfToEvenIntoSixteenBits) {
  EXPECT_EQ(ValInt16("2.5"), 2);
  EXPECT_EQ(ValInt16("-3.5"), -4);
  EXPECT_EQ(FailureOf([] { return ValInt16("32767.5"); }), 6);
}

TEST(ReadNumberFieldTest, TellsEmptyFromWrong) {
  EXPECT_EQ(ReadNumberField("   "), 0.0);
  EXPECT_EQ(ReadNumberField(" -1.5e1 "), -15.0);
  for (const char* wrong : {"abc", "1.5m", "1 2", "-", "1E"}) {
    EXPECT_EQ(FailureOf([&] { return ReadNumberField(wrong); }), 13) << wrong;
  }
}

TEST(NumberTextTest, HasAtMostSevenSignificantDigits) {
  const std::pair<float, const char*> cases[] = {
      {0.0F, " 0"},
      {-0.0F, " 0"},
      {0.5F, " 0.5"},
      {-12.0F, "-12"},
      {100.0F, " 100"},
      {1.0F / 3.0F, " 0.3333333"},
      {2.0F / 3.0F, " 0.6666667"},
      {9999999.0F, " 9999999"},
      {9999999.5F, " 1E+07"},
      {1.5E7F, " 1.5E+07"},
      {-1.234568E20F, "-1.234568E+20"},
      {0.00001F, " 0.00001"},
      {0.01234567F, " 1.234567E-02"},
      {1.5E-10F, " 1.5E-10"},
      {123456.75F, " 123456.8"},
  };
  for (const auto& [value, text] : cases) EXPECT_EQ(SignedText(value), text);
  EXPECT_EQ(SignedText(12), " 12");
  EXPECT_EQ(SignedText(-3), "-3");
  EXPECT_EQ(PlainText(1.5F), "1.5");
}

TEST(FormatTest, RoundsHalfAwayFromZeroOnTheExactValue) {
  const std::tuple<double, int, const char*> cases[] = {
      {0.125, 2, "0.13"},
      {-0.125, 2, "-0.13"},
      {2.5, 0, "3"},
      {2.675, 2, "2.67"},  // the double lies below the half
      {0.5, 0, "1"},
      {0.4, 0, "0"},
      {9.996, 2, "10.00"},
      {99.5, 0, "100"},
      {-0.0004, 3, "0.000"},
      {1234567.0, 1, "1234567.0"},
      {1e22, 0, "10000000000000000000000"},
      {5e-324, 1, "0.0"},
      {0.0, 2, "0.00"}};
  for (const auto& [value, places, text] : cases) EXPECT_EQ(FormatDecimals(value, places), text);
  EXPECT_EQ(FormatDigits(7, 3), "007");
  EXPECT_EQ(FormatDigits(-7, 3), "-007");
  EXPECT_EQ(FormatDigits(12345, 3), "12345");
}

TEST(FixedNumberTest, FillsTheField) {
  const std::tuple<float, int, int, const char*> cases[] = {
      {0.0F, 8, 3, "   0.000"},
      {-1.5F, 8, 1, "    -1.5"},
      {1.5F, 8, -3, "  +1.500"},
      {-1.5F, 8, -3, "  -1.500"},
      {-0.0004F, 8, 3, "  -0.000"},
      {-0.0F, 8, 3, "   0.000"},
      {123456.0F, 4, 0, "3456"},
      {12345678.0F, 10, 0, "  12345678"},
      {9.996F, 6, 2, " 10.00"},  // the carry comes from the rounding step
      {12.5F, 4, 3, ".500"},     // no room for the integer part
      {12.5F, 2, 3, ".500"},
      {-12.0F, 3, 0, "-12"},
      {-12.0F, 2, 0, "12"},                                    // the sign goes first
      {1.0F, 40, 0, "                                    1"},  // 35 blanks, the sign, the digit
      {2.5F, 3, 0, "  3"},
      {-2.5F, 3, 0, " -3"}};
  for (const auto& [value, width, decimals, text] : cases) {
    EXPECT_EQ(FixedNumber(value, width, decimals), text) << value;
  }
}

// With 4 and 5 decimals the rounding step is a share of the value and always upward: 100 becomes
// 100.005, whose nearest single is 100.004997, and -100 becomes -99.995 or -99.995003.
TEST(FixedNumberTest, RoundsFourAndFiveDecimalsByTheirSize) {
  EXPECT_EQ(FixedNumber(100.0F, 10, 4), "  100.0049");
  EXPECT_EQ(FixedNumber(-100.0F, 10, 4), "  -99.9950");
  EXPECT_EQ(FixedNumber(1000.0F, 12, 5), "  1000.00500");
}

TEST(FixedNumberTest, DropsAFractionOfAlmostNothing) {
  EXPECT_EQ(FixedNumber(0.00005F, 10, 6), "  0.000000");
  EXPECT_EQ(FixedNumber(0.0005F, 10, 6), "  0.000500");
}

TEST(UnitsTest, ShowsValuesInTheChosenUnit) {
  const struct {
    int unit;
    const char *pressure, *pressure_unit, *flow, *flow_unit;
  } cases[] = {{1, "1.500", "bar", "100.00", "L/min"},
               {2, "150", "Kpa", "6000", "L/sec"},
               {3, "22", "psi", "1585.0", "US gal/min"},  // 21.75 and 1585
               {0, "", "", "", ""},
               {4, "", "", "", ""}};
  Units units;
  EXPECT_EQ(units.PressureUnit(), "bar");
  for (const auto& c : cases) {
    units.SetPressureUnit(c.unit);
    units.SetFlowUnit(c.unit);
    EXPECT_EQ(units.FormatPressure(1.5F), c.pressure);
    EXPECT_EQ(units.PressureUnit(), c.pressure_unit);
    EXPECT_EQ(units.FormatFlow(100.0F), c.flow);
    EXPECT_EQ(units.FlowUnit(), c.flow_unit);
  }
}

}  // namespace
}  // namespace zeb::test
