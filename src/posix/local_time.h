#pragma once

#include <ctime>

#include "platform/clock.h"

namespace zeb {

[[nodiscard]] DateTime LocalTime(std::time_t time);

}  // namespace zeb
