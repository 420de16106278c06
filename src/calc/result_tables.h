#pragma once

#include "services/session.h"

namespace zeb {

// The figures of a balanced run that summary and reports print: the extremes of heads and pipes,
// the counts of those beyond their duty, the velocity profile, and how well heads and source agree.
// A range over nothing is 0.
void ComputeResultTables(Session& session);

// The density that a head gives, mm/min; 0 without an area.
[[nodiscard]] float ActualDensity(const Project& project, int head);
[[nodiscard]] bool IsUnderPressure(const Project& project, int head);
// With a small tolerance, as with the pressure.
[[nodiscard]] bool IsUnderDensity(const Project& project, int head);

// Draws a head as one below its duty.
void MarkHead(Project& project, int head);

}  // namespace zeb
