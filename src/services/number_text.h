#pragma once

#include <string>
#include <string_view>

#include "model/int16.h"

namespace zeb {

// The number at the start of a text: leading blanks, sign, digits, point, exponent; a blank or any
// other character ends it. 0 when there is none.
[[nodiscard]] double Val(std::string_view text);

// Val rounded half to even into 16 bits; fails with overflow.
[[nodiscard]] Int16 ValInt16(std::string_view text);

// True when the whole text, trimmed, is one number.
[[nodiscard]] bool IsNumeric(std::string_view text);

// A field of a data file: empty is 0, a text that is no number raises "Type mismatch".
[[nodiscard]] double ReadNumberField(std::string_view field);

// A number with one leading blank when it is not negative: " 12", "-3", " 0.5", " 1.5E+07". At
// most 7 significant digits for a real.
[[nodiscard]] std::string SignedText(float value);
[[nodiscard]] std::string SignedText(int value);
// The same without the blank.
[[nodiscard]] std::string PlainText(float value);
[[nodiscard]] std::string PlainText(int value);

// Fixed decimals, half away from zero on the exact value, leading zero, no grouping: the format
// "0", "0.0", "0.00"...
[[nodiscard]] std::string FormatDecimals(double value, int decimals);
// Leading zeros up to `digits`: the format "000".
[[nodiscard]] std::string FormatDigits(int value, int digits);

// Right-aligned text of fixed width with decimals 0 to 5; negative decimals show a plus sign on
// positive values. An integer part too wide loses its leading digits. See the implementation for
// the rounding, which differs by the number of decimals.
[[nodiscard]] std::string FixedNumber(float value, int width, int decimals);

}  // namespace zeb
