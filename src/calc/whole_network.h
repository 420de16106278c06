#pragma once

#include "services/session.h"

namespace zeb {

// Checks the project again when its tables hold a part of the network, as after a check that was
// stopped or failed, or when the pipe data are not loaded. False when they still hold a part.
[[nodiscard]] bool TakeWholeNetwork(Session& session);

}  // namespace zeb
