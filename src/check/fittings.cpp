#include "check/fittings.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "check/node_checks.h"
#include "services/number_text.h"

namespace zeb {
namespace {

// Directions further apart than this turn a corner, nearer than kStraight do not, degrees.
constexpr float kCorner = 60.0F;
constexpr float kStraight = 1.0F;

constexpr int kElbowValve = 1;
constexpr int kTeeValve = 4;
constexpr int kNoLengthCode = 13;

float TurnBetween(const Project& project, int pipe, int other) {
  return std::fabs(project.PipeDirection[pipe] - project.PipeDirection[other]);
}

void FitStart(Project& project, int pipe) {
  const int previous = project.PipePrevious[pipe];
  int connections = ConnectionsAt(project, project.PipeStartNode[pipe]);
  if (connections == 2 && project.PipeHead[previous] != 0) connections = 3;
  const float turn = TurnBetween(project, pipe, previous);
  if (turn > kCorner && connections == 2) ++project.PipeElbows[pipe];
  if (turn > kCorner && connections > 2) ++project.PipeTees[pipe];
  const float slopes = std::fabs(project.PipeSlope[pipe]) + std::fabs(project.PipeSlope[previous]);
  if (turn < kStraight && connections > 2 && std::floor(slopes) == 90.0F) {
    ++project.PipeTees[pipe];
  }
}

// A closing pipe's fitting at its end goes to the pipe that first reached that node.
void FitEnd(Project& project, int pipe) {
  const int first = project.PipeLoopClose[pipe];
  if (first == 0) return;
  const int connections = ConnectionsAt(project, project.PipeEndNode[pipe]);
  const float turn = TurnBetween(project, pipe, first);
  if (turn > kCorner && connections > 2) ++project.PipeTees[first];
  const bool in_line = turn == 0.0F || turn == 180.0F;
  if (in_line || connections != 2) return;
  if (project.PipeSizeIndex[pipe] <= project.PipeSizeIndex[first]) {
    ++project.PipeElbows[first];
  } else {
    ++project.PipeTees[first];
  }
}

class LengthCheck {
 public:
  LengthCheck(CheckRun& run, int pipe) : run_(run), project_(run.project), pipe_(pipe) {}

  // Warns when the valve or fitting is there and its equivalent length is not.
  void Check(int count, int valve, const std::string& what) {
    if (count <= 0 || project_.EqLengths[valve][project_.PipeSizeIndex[pipe_]] >= 0.01F) return;
    // The mark goes to the pipe that the node checks looked at last, as it always has.
    WarnOfPipe(project_, run_.node_check_pipe, kNoLengthCode,
               "Pipe" + SignedText(project_.PipeStartNode[pipe_]) +
                   SignedText(project_.PipeEndNode[pipe_]) + " =" +
                   SignedText(project_.PipeSize[pipe_]) + "mm  Eq.len of " + what + " = 0m");
  }

 private:
  CheckRun& run_;
  Project& project_;
  int pipe_;
};

void CheckLengths(CheckRun& run, int pipe) {
  const Project& project = run.project;
  LengthCheck check(run, pipe);
  const int valve = project.PipeValve[pipe];
  check.Check(valve, valve, "VT" + SignedText(valve));
  check.Check(project.PipeElbows[pipe], kElbowValve, "elbows");
  check.Check(project.PipeTees[pipe], kTeeValve, "tees");
}

}  // namespace

void CountFittings(CheckRun& run) {
  for (int pipe = 1; pipe <= run.pipes; ++pipe) {
    FitStart(run.project, pipe);
    FitEnd(run.project, pipe);
  }
}

void AddExtraFittings(CheckRun& run) {
  Project& project = run.project;
  for (int pipe = 1; pipe <= run.pipes; ++pipe) {
    project.PipeElbows[pipe] = std::max(project.PipeElbows[pipe] + project.PipeAE[pipe], 0);
    project.PipeTees[pipe] = std::max(project.PipeTees[pipe] + project.PipeAT[pipe], 0);
    if (project.PipeSizeIndex[pipe] != 0) CheckLengths(run, pipe);
  }
}

}  // namespace zeb
