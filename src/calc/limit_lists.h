#pragma once

#include "services/session.h"

namespace zeb {

// Shows a list for each limit that pipes or heads break: velocities at or below minVel or at or
// above maxVel, drops at or above maxPD, heads below their pressure or density or far above their
// required flow. What is listed is drawn in red.
void ShowLimitLists(Session& session);

}  // namespace zeb
