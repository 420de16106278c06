#include "batch/time_limit.h"

#include <sys/time.h>
#include <unistd.h>

#include <cmath>
#include <csignal>
#include <string_view>

#include "batch/options.h"

namespace zeb {
namespace {

extern "C" void EndRun(int /*signal*/) {
  constexpr std::string_view kText = "zeb-batch: the time limit is over\n";
  // Nothing can be done about a failed write here.
  [[maybe_unused]] const auto written = write(STDERR_FILENO, kText.data(), kText.size());
  _exit(kExitFailed);
}

}  // namespace

void SetTimeLimit(double seconds) {
  if (seconds <= 0.0) return;
  std::signal(SIGALRM, EndRun);
  constexpr double kLongest = 1.0e8;  // three years, within time_t everywhere
  const double limited = std::fmin(seconds, kLongest);
  itimerval timer{};
  timer.it_value.tv_sec = static_cast<time_t>(limited);
  timer.it_value.tv_usec = static_cast<suseconds_t>((limited - std::floor(limited)) * 1.0e6);
  if (timer.it_value.tv_sec == 0 && timer.it_value.tv_usec == 0) timer.it_value.tv_usec = 1;
  setitimer(ITIMER_REAL, &timer, nullptr);
}

}  // namespace zeb
