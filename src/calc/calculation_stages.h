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

// Runs the stages, each as a step of its own whose failures in real arithmetic are found, and knows
// for the log which one was last begun.
class CalculationStages {
 public:
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
