#pragma once

#include "services/session.h"

namespace zeb {

// kInteractive asks, warns and shows the summary; kSilent ends with the source duty and the pipe
// velocities, shows no box and leaves ModelState at 2.
enum class CalculationMode { kInteractive = 1, kSilent = 2 };

// Balances the checked network: source duty, flow and drop of every pipe, flow and pressure of
// every operating head. True when a result stands, though it may be one that did not balance; an
// interactive run on a calculated system is done at once. Otherwise it could not start, or was
// cancelled or failed, with SourceFlow and SourcePressure 0 and ModelState 1.
bool Calculation(Session& session, CalculationMode mode);

}  // namespace zeb
