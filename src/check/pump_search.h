#pragma once

#include "model/project.h"

namespace zeb {

// Finds the supply that the project names. True for one with a pressure, which is not the supply
// "None": PumpRow is its row then, and the row takes the project's path.
bool FindPump(Project& project);

}  // namespace zeb
