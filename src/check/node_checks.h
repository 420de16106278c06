#pragma once

#include "check/check_run.h"

namespace zeb {

// Warns of nodes with five pipes or more, and in the mode that composes lines of dead ends without
// a head or hydrant.
void CheckNodes(CheckRun& run);

// The number of pipe ends at a node.
[[nodiscard]] int ConnectionsAt(const Project& project, int node);

// Counts a warning that has no box, adds its text as a line to WarningText and marks the pipe with
// the code.
void WarnOfPipe(Project& project, int pipe, int code, const std::string& text);

}  // namespace zeb
