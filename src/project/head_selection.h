#pragma once

#include "services/session.h"

namespace zeb {

// Lets all heads operate again, as each change of the data and each drawing command does: the heads
// picked may not be there any more.
void LeaveHeadSelection(Session& session);

}  // namespace zeb
