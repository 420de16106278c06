#include "calc/summary_text.h"

#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr std::string_view kNoLabel = "                      ";

}  // namespace

std::string Fixed(float value, NumberFormat format) {
  return FixedNumber(value, format.width, format.decimals);
}

void SummaryText::Line(std::string_view text) { text_.append(text).append(kLineBreak); }

void SummaryText::Line(std::string_view label, float value, NumberFormat format,
                       std::string_view unit) {
  text_.append(label).append(Fixed(value, format)).append(unit).append(kLineBreak);
}

void SummaryText::SameIn(std::string_view unit, float value, NumberFormat format) {
  Line(kNoLabel, value, format, unit);
}

void SummaryText::PutFirst(std::string_view text) { text_.insert(0, text); }

}  // namespace zeb
