#pragma once

#include "model/project.h"

namespace zeb {

// Corrects the flows around the loops by the method of Hardy Cross until the signed drops of each
// loop sum to at most a quarter of PressureTol. Takes the drops as they stand for the flows, and
// leaves both and LoopError, the largest sum of the last sweep in bar. Loops that cannot close keep
// it sweeping without end. CheckFlowPaths must have passed.
void BalanceLoops(Project& project);

}  // namespace zeb
