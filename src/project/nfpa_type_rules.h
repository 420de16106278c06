#pragma once

#include "model/project.h"

namespace zeb {

// What the NFPA and FM rules make of the pipe types 1 to `types`: another C, with its factor, for
// some materials, and under NFPA the type whose bores are the measure of fitting lengths.
void ApplyNfpaTypeRules(Project& project, int types);

}  // namespace zeb
