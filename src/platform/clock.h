#pragma once

namespace zeb {

// Local date and time.
struct DateTime {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
};

class Clock {
 public:
  Clock() = default;
  Clock(const Clock&) = delete;
  Clock& operator=(const Clock&) = delete;
  virtual ~Clock() = default;

  [[nodiscard]] virtual DateTime Now() = 0;
  // Seconds from an arbitrary start, never running backward.
  [[nodiscard]] virtual double Seconds() = 0;
};

}  // namespace zeb
