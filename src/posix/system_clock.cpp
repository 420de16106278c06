#include "posix/system_clock.h"

#include <chrono>
#include <ctime>

#include "posix/local_time.h"

namespace zeb {

DateTime SystemClock::Now() { return LocalTime(std::time(nullptr)); }

double SystemClock::Seconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

}  // namespace zeb
