#include "calc/loop_balance.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <span>

#include "calc/pressure_loss.h"

namespace zeb {
namespace {

class LoopSweep {
 public:
  explicit LoopSweep(Project& project)
      : project_(project),
        drops_(project),
        open_limit_(project.PressureTol / 4.0F),
        flow_(project.PipeFlow.Slots()),
        drop_(project.PipeDrop.Slots()) {}

  // Corrects each loop once and tells whether one of them was open.
  bool Run() {
    open_ = false;
    largest_sum_ = 0.0F;
    for (int loop = 1; loop <= project_.LoopCount; ++loop) BalanceLoop(PipesOf(loop));
    project_.LoopError = largest_sum_;
    return open_;
  }

 private:
  using SignedPipes = std::span<const Int16>;

  [[nodiscard]] SignedPipes PipesOf(int loop) const {
    const int first = project_.LoopFirst[loop];
    const int last = project_.LoopLast[loop];
    if (first > last) return {};
    return SignedPipes(project_.LoopPipes.Slots()).subspan(first, last - first + 1);
  }

  void BalanceLoop(SignedPipes pipes) {
    double sum = 0.0;
    double ratio = 0.0;
    for (const int entry : pipes) {
      const int pipe = std::abs(entry);
      const double drop = drop_[pipe];
      sum += entry < 0 ? -drop : drop;
      if (flow_[pipe] != 0.0F) ratio += drop / flow_[pipe];
    }
    if (ratio == 0.0) return;
    Note(static_cast<float>(std::fabs(sum)));
    Correct(pipes, project_.LoopFactor * sum / 1.85 / ratio);
  }

  void Note(float sum) {
    if (sum > open_limit_) open_ = true;
    largest_sum_ = std::max(largest_sum_, sum);
  }

  void Correct(SignedPipes pipes, double correction) {
    for (const int entry : pipes) {
      const int pipe = std::abs(entry);
      const double change = entry < 0 ? -correction : correction;
      flow_[pipe] = static_cast<float>(flow_[pipe] - change);
      drops_.Update(pipe);
    }
  }

  Project& project_;
  PipeDrops drops_;
  float open_limit_;
  std::span<float> flow_;
  std::span<const float> drop_;
  bool open_ = false;
  float largest_sum_ = 0.0F;
};

}  // namespace

void BalanceLoops(Project& project) {
  if (project.LoopCount == 0) return;
  LoopSweep sweep(project);
  while (sweep.Run()) {
  }
}

}  // namespace zeb
