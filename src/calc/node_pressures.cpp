#include "calc/node_pressures.h"

#include <cmath>
#include <functional>
#include <queue>
#include <span>
#include <vector>

#include "calc/fluid.h"

namespace zeb {
namespace {

bool IsUnset(float pressure) { return std::fabs(pressure - kUnsetPressure) <= 0.1F; }

// The pipes at each node.
class NodeIndex {
 public:
  explicit NodeIndex(const Project& project) {
    for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
      ++first_[project.PipeStartNode[pipe] + 1];
      ++first_[project.PipeEndNode[pipe] + 1];
    }
    for (int node = 1; node <= kLastNode + 1; ++node) first_[node] += first_[node - 1];
    pipes_.resize(first_[kLastNode + 1]);
    auto next = first_;
    for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
      pipes_[next[project.PipeStartNode[pipe]]++] = pipe;
      pipes_[next[project.PipeEndNode[pipe]]++] = pipe;
    }
  }

  [[nodiscard]] std::span<const int> PipesAt(int node) const {
    return std::span(pipes_).subspan(first_[node], first_[node + 1] - first_[node]);
  }

 private:
  Table<int, kLastNode + 1> first_;  // of each node's pipes in pipes_
  std::vector<int> pipes_;
};

class PressureSpread {
 public:
  explicit PressureSpread(Project& project)
      : project_(project), nodes_(project), metres_per_bar_(MetresPerBar(project)) {}

  void Run() {
    if (project_.PipeCount == 0) return;
    SolveFirstPipe();
    while (!ready_.empty()) {
      const int pipe = ready_.top();
      ready_.pop();
      if (StartKnown(pipe) != EndKnown(pipe)) Solve(pipe);
    }
  }

 private:
  [[nodiscard]] bool StartKnown(int pipe) const {
    return !IsUnset(project_.PipeStartPressure[pipe]);
  }
  [[nodiscard]] bool EndKnown(int pipe) const { return !IsUnset(project_.PipeEndPressure[pipe]); }

  [[nodiscard]] double RiseLoss(int pipe) const {
    return project_.PipeRise[pipe] / metres_per_bar_;
  }

  [[nodiscard]] double Loss(int pipe) const {
    const float flow = project_.PipeFlow[pipe];
    const double drop = std::fabs(project_.PipeDrop[pipe]);
    return (flow > 0.0F ? drop : flow < 0.0F ? -drop : 0.0) + RiseLoss(pipe);
  }

  void SolveFirstPipe() {
    project_.PipeStartPressure[1] = project_.SourcePressure;
    SetNode(project_.PipeEndNode[1], project_.SourcePressure - project_.PipeDrop[1] - RiseLoss(1));
  }

  void Solve(int pipe) {
    if (StartKnown(pipe)) {
      SetNode(project_.PipeEndNode[pipe], project_.PipeStartPressure[pipe] - Loss(pipe));
    } else {
      SetNode(project_.PipeStartNode[pipe], project_.PipeEndPressure[pipe] + Loss(pipe));
    }
  }

  void SetNode(int node, double pressure) {
    for (const int pipe : nodes_.PipesAt(node)) {
      if (project_.PipeStartNode[pipe] == node) {
        project_.PipeStartPressure[pipe] = static_cast<float>(pressure);
      }
      if (project_.PipeEndNode[pipe] == node) {
        project_.PipeEndPressure[pipe] = static_cast<float>(pressure);
      }
      if (pipe != 1 && StartKnown(pipe) != EndKnown(pipe)) ready_.push(pipe);
    }
  }

  Project& project_;
  NodeIndex nodes_;
  double metres_per_bar_;
  // Of the pipes with one known side the lowest slot is next.
  std::priority_queue<int, std::vector<int>, std::greater<>> ready_;
};

}  // namespace

void ClearNodePressures(Project& project) {
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    project.PipeStartPressure[pipe] = kUnsetPressure;
    project.PipeEndPressure[pipe] = kUnsetPressure;
  }
}

void SpreadNodePressures(Project& project) { PressureSpread(project).Run(); }

}  // namespace zeb
