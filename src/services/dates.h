#pragma once

#include <string>

#include "platform/clock.h"

namespace zeb {

[[nodiscard]] std::string DateText(const DateTime& time);       // dd/mm/yyyy
[[nodiscard]] std::string TimeText(const DateTime& time);       // hh:mm:ss
[[nodiscard]] std::string ShortTimeText(const DateTime& time);  // hh:mm
[[nodiscard]] std::string LongDateText(const DateTime& time);   // d-mmmm-yy

}  // namespace zeb
