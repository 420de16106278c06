#pragma once

#include "calc/operating_heads.h"
#include "services/session.h"

namespace zeb {

// Calculates with the picked heads, or with all when none are picked. With a supply, first what the
// system would ask of one. True when a result stands.
bool Ccall(Session& session);

// Shows the summary of the last calculation again.
void Dcalc(Session& session);

}  // namespace zeb
