#include "check/line_options.h"

#include "check/line_words.h"
#include "services/number_text.h"

namespace zeb {
namespace {

// In the order of LineOption.
constexpr std::array<std::string_view, 9> kCodes = {"OP", "PD", "AL", "AE", "AT",
                                                    "VJ", "HY", "DD", "AB"};
constexpr std::size_t kCodeLength = 2;

bool IsLetter(char c) { return c >= 'A' && c <= 'Z'; }

}  // namespace

LineOptions::LineOptions(std::string_view line) : line_(line) {
  starts_.fill(kAbsent);
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    if (IsLetter(line[i]) && IsLetter(line[i + 1])) NoteCodeAt(i);
  }
}

void LineOptions::NoteCodeAt(std::size_t start) {
  const std::string_view letters = line_.substr(start, kCodeLength);
  for (std::size_t code = 0; code < kCount; ++code) {
    if (letters == kCodes[code] && starts_[code] == kAbsent) starts_[code] = start;
  }
}

std::string_view LineOptions::Behind(LineOption option) const {
  return Has(option) ? line_.substr(Start(option) + kCodeLength) : std::string_view();
}

float LineOptions::Single(LineOption option) const { return ValSingle(Behind(option)); }

Int16 LineOptions::Integer(LineOption option) const { return ValInt16(Behind(option)); }

}  // namespace zeb
