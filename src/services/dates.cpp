#include "services/dates.h"

#include <array>
#include <cstddef>

#include "services/number_text.h"

namespace zeb {
namespace {

constexpr std::array kMonths{"January", "February", "March",     "April",   "May",      "June",
                             "July",    "August",   "September", "October", "November", "December"};

}  // namespace

std::string DateText(const DateTime& time) {
  return FormatDigits(time.day, 2) + "/" + FormatDigits(time.month, 2) + "/" +
         FormatDigits(time.year, 4);
}

std::string TimeText(const DateTime& time) {
  return ShortTimeText(time) + ":" + FormatDigits(time.second, 2);
}

std::string ShortTimeText(const DateTime& time) {
  return FormatDigits(time.hour, 2) + ":" + FormatDigits(time.minute, 2);
}

std::string LongDateText(const DateTime& time) {
  return PlainText(time.day) + "-" + kMonths.at(static_cast<std::size_t>(time.month - 1)) + "-" +
         FormatDigits(time.year % 100, 2);
}

}  // namespace zeb
