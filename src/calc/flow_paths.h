#pragma once

#include "model/project.h"

namespace zeb {

// The way from a pipe up to the source goes through PipeUpstream, from slot to slot. These walk it
// without a check at each step, so CheckFlowPaths must have passed since the tables were filled.

// Raises "Subscript out of range" unless each pipe lies behind its upstream pipe in the table and
// each head and loop names pipes of the project, so that every walk ends.
void CheckFlowPaths(const Project& project);

// Adds the flow (L/min) to the pipe and to all pipes upstream.
void AddAlongPath(Project& project, int pipe, float flow);

// The sum of the signed drops from the pipe up to the source, added to `start` one by one, bar.
[[nodiscard]] double SumAlongPath(const Project& project, int pipe, double start);

// The pipe that ends at a head.
[[nodiscard]] int PipeOfHead(const Project& project, int head);
// The node that a head stands at; 0 for head 0.
[[nodiscard]] int NodeOfHead(const Project& project, int head);

}  // namespace zeb
