#include "check/duplicate_heads.h"

#include <vector>

#include "check/fault_texts.h"
#include "services/number_text.h"

namespace zeb {
namespace {

void ReportPair(CheckRun& run, int head, int other) {
  const Project& project = run.project;
  const int pipe = static_cast<int>(project.HeadPipe[head]);
  const int other_pipe = static_cast<int>(project.HeadPipe[other]);
  ReportCheckError(run, MakeFault(Fault::kDuplicateHead,
                                  {{"node", SignedText(project.PipeEndNode[pipe])},
                                   {"head", SignedText(head)},
                                   {"a", SignedText(project.PipeStartNode[pipe])},
                                   {"b", SignedText(project.PipeEndNode[pipe])},
                                   {"code", SignedText(project.HeadCode[head])},
                                   {"other head", SignedText(other)},
                                   {"other a", SignedText(project.PipeStartNode[other_pipe])},
                                   {"other b", SignedText(project.PipeEndNode[other_pipe])}}));
}

// For each head the next one at the same node, 0 for none.
std::vector<int> NextAtSameNode(const Project& project) {
  std::vector<int> next(project.HeadCount + 1);
  std::vector<int> first_at(kLastNode + 1);
  for (int head = project.HeadCount; head >= 1; --head) {
    int& first = first_at[project.PipeEndNode[static_cast<int>(project.HeadPipe[head])]];
    next[head] = first;
    first = head;
  }
  return next;
}

}  // namespace

void FindDuplicateHeads(CheckRun& run) {
  const std::vector<int> next = NextAtSameNode(run.project);
  for (int head = 1; head <= run.heads; ++head) {
    for (int other = next[head]; other != 0; other = next[other]) ReportPair(run, head, other);
    TestStopFlag(run);
  }
}

}  // namespace zeb
