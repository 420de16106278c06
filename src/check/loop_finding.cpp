#include "check/loop_finding.h"

#include <algorithm>
#include <vector>

namespace zeb {
namespace {

// The two ways back from a shared node, each without what they have in common.
struct LoopWays {
  std::vector<int> closing;
  std::vector<int> first;
};

// A pipe's feed always stands in an earlier slot, so the later of two pipes is never on the way of
// the other, and the first pipe met on both ways is where they part.
void FollowToMeeting(const Project& project, int closing, int first, LoopWays& ways) {
  ways.closing.clear();
  ways.first.clear();
  while (closing != first) {
    int& later = closing > first ? closing : first;
    (closing > first ? ways.closing : ways.first).push_back(later);
    later = project.PipeUpstream[later];
  }
  std::reverse(ways.first.begin(), ways.first.end());  // a loop goes back along it
}

int WriteLoop(LoopTables& tables, const LoopWays& ways, int last) {
  for (const int pipe : ways.closing) tables.LoopPipes[++last] = -pipe;
  for (const int pipe : ways.first) tables.LoopPipes[++last] = pipe;
  return last;
}

}  // namespace

void FindLoops(CheckRun& run) {
  Project& project = run.project;
  const int loops = std::min(run.closings, kLastLoop);
  LoopWays ways;
  int last = 0;
  for (int loop = 1; loop <= loops; ++loop) {
    FollowToMeeting(project, project.LoopFirst[loop], project.LoopLast[loop], ways);
    project.LoopFirst[loop] = last + 1;
    last = WriteLoop(project, ways, last);
    project.LoopLast[loop] = last;
  }
  project.LoopCount = loops;
  project.LoopListLength = last;
}

}  // namespace zeb
