#pragma once

namespace zeb {

// Ends the process with kExitFailed and a message when the time is over, wherever it is. Nothing is
// lost by that: every file is written beside its target first.
void SetTimeLimit(double seconds);

}  // namespace zeb
