#include "check/node_checks.h"

#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kCrowdedNode = 5;
constexpr int kCrowdedCode = 12;
constexpr int kDeadEndCode = 13;

void CheckCrowd(CheckRun& run, int node) {
  const int connections = ConnectionsAt(run.project, node);
  if (connections < kCrowdedNode) return;
  run.node_check_pipe = run.project.NodeFirstPipe[node];
  WarnOfPipe(
      run.project, run.node_check_pipe, kCrowdedCode,
      "Node number" + SignedText(node) + " has been used" + SignedText(connections) + " times");
}

void CheckDeadEnd(CheckRun& run, int node) {
  Project& project = run.project;
  if (project.NodeStarts[node] != 0 || project.NodeEnds[node] != 1) return;
  const int pipe = project.NodeFirstPipe[node];
  run.node_check_pipe = pipe;
  if (project.PipeHead[pipe] != 0 || project.PipeHydrant[pipe] != 0.0F) return;
  WarnOfPipe(project, pipe, kDeadEndCode,
             "End node" + SignedText(node) + " used once is not a head");
}

}  // namespace

int ConnectionsAt(const Project& project, int node) {
  return project.NodeStarts[node] + project.NodeEnds[node];
}

void WarnOfPipe(Project& project, int pipe, int code, const std::string& text) {
  ++project.WarningCount;
  project.PipeError[pipe] = code;
  project.WarningText += text;
  project.WarningText += kLineBreak;
}

void CheckNodes(CheckRun& run) {
  for (int node = run.project.MinNode; node <= run.project.MaxNode; ++node) {
    CheckCrowd(run, node);
    if (run.mode == CheckMode::kComposeLines) CheckDeadEnd(run, node);
  }
}

}  // namespace zeb
