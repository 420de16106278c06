#pragma once

#include <vector>

#include "calc/calculation_stages.h"
#include "calc/head_balance.h"
#include "calc/progress_form.h"
#include "services/session.h"

namespace zeb {

// Resets all that the iteration keeps in the project between its passes.
void ResetBalance(Project& project);

// The iteration: passes in which flows go up the paths, loops are balanced and heads move towards
// what the source gives them, until all heads agree or the passes are used up. Leaves flows, drops,
// head pressures, SourceFlow and SourcePressure.
class BalanceRun {
 public:
  // After ResetBalance, with the fluid and the supply set. Raises a RuntimeFailure for tables that
  // lead nowhere.
  BalanceRun(Session& session, CalculationStages& stages, ProgressWindow& progress);

  // False when the user stopped it. Raises a RuntimeFailure where the arithmetic fails.
  bool Run();

  // Of the last pass.
  [[nodiscard]] float LargestHeadFlowChange() const { return figures_.largest_change; }

 private:
  enum class Next { kRestart, kPass, kDone, kStopped };

  void Start();
  Next Pass();
  void FindLengths();
  void BalanceFlows();
  void FindSource();
  void SetRelaxation();
  [[nodiscard]] bool Stopped();
  [[nodiscard]] bool Diverges();
  [[nodiscard]] Next EndPass();

  Session& session_;
  Project& project_;
  CalculationStages& stages_;
  ProgressWindow& progress_;
  std::vector<int> heads_;
  PassFigures figures_;
};

}  // namespace zeb
