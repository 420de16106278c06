#pragma once

#include "services/session.h"

namespace zeb {

// Saves changes and writes the session file, once a run. False when the user keeps the program
// open.
[[nodiscard]] bool closedown(Session& session);

// The Exit command. True when the program is to end.
[[nodiscard]] bool Fexit(Session& session);

}  // namespace zeb
