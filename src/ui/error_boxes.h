#pragma once

#include "services/session.h"

namespace zeb {

// Shows or hides the boxes of check errors from now on, and tells on the status bar.
void ToggleErrorBoxes(Session& session);

}  // namespace zeb
