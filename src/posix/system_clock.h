#pragma once

#include "platform/clock.h"

namespace zeb {

// The machine's time in its own time zone.
class SystemClock final : public Clock {
 public:
  [[nodiscard]] DateTime Now() override;
  [[nodiscard]] double Seconds() override;
};

}  // namespace zeb
