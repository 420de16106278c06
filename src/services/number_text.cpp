#include "services/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <limits>
#include <system_error>

#include "services/text.h"

namespace zeb {
namespace {

constexpr std::string_view kDigits = "0123456789";

std::size_t DigitsAt(std::string_view text, std::size_t at) {
  return std::min(text.find_first_not_of(kDigits, at), text.size()) - at;
}

// The length of the exponent at a position, 0 when no digits follow the letter.
std::size_t ExponentAt(std::string_view text, std::size_t at) {
  if (at >= text.size() || (text[at] != 'E' && text[at] != 'e')) return 0;
  std::size_t digits = at + 1;
  if (digits < text.size() && (text[digits] == '+' || text[digits] == '-')) ++digits;
  const std::size_t count = DigitsAt(text, digits);
  return count == 0 ? 0 : digits + count - at;
}

// The number at the start of a text without leading blanks; empty when there is none.
std::string_view NumberPrefix(std::string_view text) {
  const std::size_t sign = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
  const std::size_t whole = DigitsAt(text, sign);
  std::size_t end = sign + whole;
  std::size_t decimals = 0;
  if (end < text.size() && text[end] == '.') {
    decimals = DigitsAt(text, end + 1);
    end += 1 + decimals;
  }
  if (whole + decimals == 0) return {};
  return text.substr(0, end + ExponentAt(text, end));
}

// The exponent of a number prefix, kept within bounds that no mantissa makes up for.
long long ExponentOf(std::string_view exponent) {
  constexpr long long kHuge = std::numeric_limits<long long>::max() / 2;
  if (exponent.empty()) return 0;
  const bool negative = exponent[1] == '-';
  exponent.remove_prefix(negative || exponent[1] == '+' ? 2 : 1);
  long long value = kHuge;
  std::from_chars(exponent.data(), exponent.data() + exponent.size(), value);
  return negative ? -std::min(value, kHuge) : std::min(value, kHuge);
}

// A number beyond the range of a double is either huge or next to nothing: the power of ten of its
// first digit tells.
bool IsHuge(std::string_view number) {
  const std::string_view mantissa = number.substr(0, number.find_first_of("Ee"));
  const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
  const std::size_t first = mantissa.find_first_of("123456789");
  const long long power = static_cast<long long>(point) - static_cast<long long>(first);
  return power + ExponentOf(number.substr(mantissa.size())) > 0;
}

double Parsed(std::string_view number) {
  if (number.empty()) return 0.0;
  if (number[0] == '+') number.remove_prefix(1);
  double value = 0.0;
  const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    if (IsHuge(number)) throw RuntimeFailure(failure::kOverflow);
    return 0.0;
  }
  return value + 0.0;  // never a negative zero
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string Scientific(float value, int decimals) {
  std::array<char, 32> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::scientific, decimals);
  return {buffer.data(), result.ptr};
}

// All digits of the exact decimal value of a finite double, with at least `decimals` behind the
// point.
std::string ExactDecimals(double value, int decimals) {
  const int exact = value == 0.0 ? 0 : std::numeric_limits<double>::digits - std::ilogb(value);
  std::array<char, 1500> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::fixed, std::max(decimals, exact));
  return {buffer.data(), result.ptr};
}

// Adds one in the last place of a decimal text.
void CountUp(std::string& number) {
  for (std::size_t place = number.size(); place > 0; --place) {
    char& digit = number[place - 1];
    if (digit == '.') continue;
    if (digit != '9') {
      ++digit;
      return;
    }
    digit = '0';
  }
  number.insert(0, "1");
}

std::string ExponentForm(std::string digits, int exponent) {
  if (digits.size() > 1) digits.insert(1, ".");
  const char sign = exponent < 0 ? '-' : '+';
  return digits + 'E' + sign + FormatDigits(std::abs(exponent), 2);
}

std::string PointForm(const std::string& digits, int exponent) {
  const int count = static_cast<int>(digits.size());
  if (exponent < 0)
    return "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
  if (exponent >= count - 1) {
    return digits + std::string(static_cast<std::size_t>(exponent - count + 1), '0');
  }
  return Left(digits, exponent + 1) + "." + Mid(digits, exponent + 2);
}

// At most 7 significant digits; the exponent form where the number or its decimals need more than 7
// places.
std::string MagnitudeText(float value) {
  constexpr int kSignificant = 7;
  std::string scientific = Scientific(value, kSignificant - 1);
  if (!std::isfinite(value)) return scientific;
  const std::size_t letter = scientific.find('e');
  const int exponent = static_cast<int>(Val(scientific.substr(letter + 1)));
  std::string digits = ReplaceAll(scientific.substr(0, letter), ".", "");
  digits.erase(std::max<std::size_t>(digits.find_last_not_of('0') + 1, 1));
  const int decimals = static_cast<int>(digits.size()) - 1 - exponent;
  const bool fits = exponent < kSignificant && (exponent >= 0 || decimals <= kSignificant);
  return fits ? PointForm(digits, exponent) : ExponentForm(digits, exponent);
}

double Sign(float value) { return value > 0.0F ? 1.0 : value < 0.0F ? -1.0 : 0.0; }

double PowerOfTen(int exponent) { return std::pow(10.0, exponent); }

// Half a unit of the last decimal away from zero. With 4 and 5 decimals the step is in proportion
// to the size of the value, so that negative values go toward zero: columns of old printouts line
// up with it.
float RoundedForDecimals(float value, int decimals) {
  const double wide = value;
  switch (decimals) {
    case 0:
      return static_cast<float>(wide + 0.5 * Sign(value));
    case 1:
    case 2:
    case 3:
      return static_cast<float>(wide + Sign(value) * 5.0 / PowerOfTen(decimals + 1));
    case 4:
      return static_cast<float>(wide + std::fabs(wide) * 0.00005);
    case 5:
      return static_cast<float>(wide + std::fabs(wide) * 0.000005);
    default:
      return value;
  }
}

std::string WholeText(double whole) {
  constexpr double kPlain = 1E15;  // below, a whole number needs no exact decimals
  if (whole < kPlain) return std::to_string(static_cast<long long>(whole));
  const std::string text = ExactDecimals(whole, 0);
  return text.substr(0, text.find('.'));
}

// The digits behind the point of a value that is not negative.
std::string DecimalDigits(float value, int decimals) {
  float fraction = value - std::floor(value);
  if (fraction <= 0.0001F) fraction = 0.0F;
  const double digits =
      fraction == 0.0F ? 1000000.0
                       : std::floor(PowerOfTen(decimals) * (static_cast<double>(fraction) + 1.0));
  return Right(WholeText(digits), decimals);
}

}  // namespace

double Val(std::string_view text) { return Parsed(NumberPrefix(WithoutLeadingBlanks(text))); }

Int16 ValInt16(std::string_view text) { return RoundToInt16(Val(text)); }

bool IsNumeric(std::string_view text) {
  const std::string trimmed = Trim(text);
  return !trimmed.empty() && NumberPrefix(trimmed).size() == trimmed.size();
}

double ReadNumberField(std::string_view field) {
  if (Trim(field).empty()) return 0.0;
  if (!IsNumeric(field)) throw RuntimeFailure(failure::kTypeMismatch);
  return Val(field);
}

std::string PlainText(float value) {
  return (value < 0.0F ? "-" : "") + MagnitudeText(std::fabs(value));
}

std::string PlainText(int value) { return std::to_string(value); }

std::string SignedText(float value) { return (value < 0.0F ? "" : " ") + PlainText(value); }

std::string SignedText(int value) { return (value < 0 ? "" : " ") + PlainText(value); }

std::string FormatDecimals(double value, int decimals) {
  if (!std::isfinite(value)) throw RuntimeFailure(failure::kOverflow);
  const int places = std::max(decimals, 0);
  std::string text = ExactDecimals(std::fabs(value), places + 1);
  const std::size_t dropped = text.find('.') + static_cast<std::size_t>(places) + 1;
  const bool up = text[dropped] >= '5';
  text.erase(places == 0 ? dropped - 1 : dropped);
  if (up) CountUp(text);
  const bool zero = text.find_first_of("123456789") == std::string::npos;
  return value < 0.0 && !zero ? "-" + text : text;
}

std::string FormatDigits(int value, int digits) {
  std::string text = std::to_string(std::abs(static_cast<long>(value)));
  const auto width = static_cast<std::size_t>(std::max(digits, 0));
  if (text.size() < width) text.insert(0, width - text.size(), '0');
  return value < 0 ? "-" + text : text;
}

std::string FixedNumber(float value, int width, int decimals) {
  if (!std::isfinite(value)) throw RuntimeFailure(failure::kOverflow);
  char sign = ' ';
  if (decimals < 0) {
    decimals = -decimals;
    sign = '+';
  }
  const int whole_width = decimals == 0 ? width : width - decimals - 1;
  value = RoundedForDecimals(value, decimals);
  if (value < 0.0F) sign = '-';
  value = std::fabs(value);
  const std::string field = std::string(35, ' ') + sign + WholeText(std::floor(value));
  const std::string whole = Right(field, whole_width);
  return decimals == 0 ? whole : whole + "." + DecimalDigits(value, decimals);
}

}  // namespace zeb
