#include "posix/local_time.h"

namespace zeb {

DateTime LocalTime(std::time_t time) {
  std::tm parts{};
  localtime_r(&time, &parts);
  return {.year = parts.tm_year + 1900,
          .month = parts.tm_mon + 1,
          .day = parts.tm_mday,
          .hour = parts.tm_hour,
          .minute = parts.tm_min,
          .second = parts.tm_sec};
}

}  // namespace zeb
