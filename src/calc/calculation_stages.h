#pragma once

#include <string_view>

#include "model/real_arithmetic.h"

namespace zeb {

// The stages of a calculation, in their order.
enum class CalculationStage {
  kSetup,
  kShowBox,
  kFlowTotals,
  kHeadFlows,
  kSizing,
  kLoopBalance,
  kHeadBalance,
  kHeadMinMax,
  kNozzleBalance,
  kNextIteration,
  kPressures,
  kMinMax,
  kSummary,
};

// Knows for the log which stage was last begun.
class CalculationStages {
 public:
  // Begins a stage in which windows are shown, whose own arithmetic is no concern here.
  void Enter(CalculationStage stage) { stage_ = stage; }

  // Runs a step of a stage and raises a failure for what went wrong in its real arithmetic.
  template <class Stage>
  void Run(CalculationStage stage, Stage run) {
    stage_ = stage;
    ClearRealArithmeticFlags();
    run();
    CheckRealArithmeticFlags();
  }

  [[nodiscard]] std::string_view Name() const;
  // The statement number of the stage: 10 for the first, 20 for the second...
  [[nodiscard]] int Statement() const { return 10 * (static_cast<int>(stage_) + 1); }

 private:
  CalculationStage stage_ = CalculationStage::kSetup;
};

}  // namespace zeb
