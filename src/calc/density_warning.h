#pragma once

#include "services/session.h"

namespace zeb {

// Warns that the four most remote heads together give less than their required density, and why.
// Not under the rules that know no search of four heads.
void WarnOfLowDensity(Session& session);

}  // namespace zeb
