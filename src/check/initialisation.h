#pragma once

#include "check/check_run.h"

namespace zeb {

// True when the project's design authority is one that ZEB knows. Otherwise tells so, and disables
// the commands that change the project.
[[nodiscard]] bool AcceptAuthority(Session& session);

// Clears what a check works out anew, and takes over head codes, rules, options and pipe data.
// Ends the pass when the pipe data cannot be read.
void InitialiseCheck(CheckRun& run);

}  // namespace zeb
