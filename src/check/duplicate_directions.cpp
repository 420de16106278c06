#include "check/duplicate_directions.h"

#include <array>
#include <cmath>
#include <vector>

#include "check/node_checks.h"
#include "services/number_text.h"

namespace zeb {
namespace {

constexpr int kJunction = 3;
constexpr int kWarningCode = 14;

// The first two pipes that each pipe feeds, 0 for none.
using Branches = std::vector<std::array<int, 2>>;

Branches FindBranches(const Project& project, int pipes) {
  Branches branches(pipes + 1);
  for (int pipe = 1; pipe <= pipes; ++pipe) {
    auto& pair = branches[project.PipeUpstream[pipe]];
    if (pair[0] == 0) {
      pair[0] = pipe;
    } else if (pair[1] == 0) {
      pair[1] = pipe;
    }
  }
  return branches;
}

bool RunAlike(const Project& project, int pipe, int other) {
  return RoundToInt16(project.PipeDirection[pipe]) == RoundToInt16(project.PipeDirection[other]) &&
         std::fabs(project.PipeSlope[pipe] - project.PipeSlope[other]) < 0.5F;
}

}  // namespace

void FindDuplicateDirections(CheckRun& run) {
  Project& project = run.project;
  const Branches branches = FindBranches(project, run.pipes);
  for (int pipe = 1; pipe <= run.pipes; ++pipe) {
    const int node = project.PipeEndNode[pipe];
    const auto [one, two] = branches[pipe];
    if (ConnectionsAt(project, node) != kJunction || two == 0) continue;
    if (!RunAlike(project, one, two)) continue;
    WarnOfPipe(project, pipe, kWarningCode,
               "2 pipes from node" + SignedText(node) + " have the same direction");
  }
}

}  // namespace zeb
