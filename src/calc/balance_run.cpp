#include "calc/balance_run.h"

#include <algorithm>
#include <cmath>

#include "calc/control_head.h"
#include "calc/flow_paths.h"
#include "calc/fluid.h"
#include "calc/heads.h"
#include "calc/loop_balance.h"
#include "calc/pipe_sizing.h"
#include "calc/pressure_loss.h"
#include "calc/supply_curve.h"
#include "services/number_text.h"

namespace zeb {
namespace {

constexpr int kLastIteration = 200;
constexpr int kRestarted = 2;
constexpr float kLeastSourcePressure = 0.001F;  // bar
constexpr float kMostRelaxation = 0.95F;

// An unsized pipe has no length until a size is chosen for it.
void FindLength(Session& session, int pipe) {
  Project& project = session.project;
  const bool unsized = project.PipeUnsized[pipe] != 0;
  if (!unsized || project.PipeSizeIndex[pipe] > 0) {
    EquivalentLength(project, pipe, project.PipeSizeIndex[pipe]);
  }
  if (!unsized) return;
  ChoosePipeSize(session, pipe);
  if (project.PipeSizeIndex[pipe] == 0) throw RuntimeFailure(failure::kDivisionByZero);
}

int LeastSizeIndex(const Project& project) {
  int least = kLastPipeSize;
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    least = std::min<int>(least, project.PipeSizeIndex[pipe]);
  }
  return least;
}

bool IsDenseOnSmallPipes(const Project& project) {
  constexpr float kHighDensity = 4.0F;  // mm/min
  const auto density = static_cast<float>(Val(ItemText(project, Item::kDensity)));
  return density > kHighDensity && LeastSizeIndex(project) == 1;
}

float RelaxationFor(const Project& project, const PassFigures& figures) {
  const double entered = ReadCommentValue("RF", ItemText(project, Item::kComments), 0.0);
  if (entered > 0.0) return static_cast<float>(entered);
  if (project.PumpCurveIndex != 0) return 0.8F;
  if (IsDenseOnSmallPipes(project)) return 0.9F;
  const double spread = static_cast<double>(figures.lowest_required) / figures.highest_required;
  return std::clamp(static_cast<float>(2.15 - 2.0 * spread), 0.6F, 0.8F);
}

void CheckFinite(float value) {
  if (!std::isfinite(value)) throw RuntimeFailure(failure::kOverflow);
}

}  // namespace

void ResetBalance(Project& project) {
  project.Iteration = 0;
  project.RestartState = 0;
  project.PressureTol = 0.01F;
  project.FinalTol = 0.001F;
  project.LoopFactor = std::min(1.0F + 0.03F * static_cast<float>(project.LoopCount), 1.7F);
  project.Relaxation = 0.0F;
  project.ControlHead = 0;
  project.PrevMaxChange = 0.0F;
  project.DesignFlow = 0.0F;
  project.SourceFlow = 0.0F;
  project.SourcePressure = 0.0F;
}

BalanceRun::BalanceRun(Session& session, CalculationStages& stages, ProgressWindow& progress)
    : session_(session), project_(session.project), stages_(stages), progress_(progress) {
  CheckFlowPaths(project_);
  heads_ = OperatingHeads(project_);
}

bool BalanceRun::Run() {
  Next next = Next::kRestart;
  while (next == Next::kRestart || next == Next::kPass) {
    if (next == Next::kRestart) Start();
    next = Pass();
  }
  return next == Next::kDone;
}

void BalanceRun::Start() {
  stages_.Run(CalculationStage::kFlowTotals, [this] {
    StartHeads(project_, heads_);
    StartPipeFlows(project_);
  });
}

BalanceRun::Next BalanceRun::Pass() {
  figures_ = {};
  stages_.Run(CalculationStage::kHeadFlows, [this] { PushHeadFlowChanges(project_, heads_); });
  stages_.Run(CalculationStage::kSizing, [this] { FindLengths(); });
  stages_.Run(CalculationStage::kLoopBalance, [this] { BalanceFlows(); });
  stages_.Run(CalculationStage::kHeadBalance, [this] { FindSource(); });
  if (Stopped()) return Next::kStopped;
  stages_.Run(CalculationStage::kHeadMinMax, [this] {
    SetRelaxation();
    MoveHeads(project_, heads_, figures_);
  });
  stages_.Run(CalculationStage::kNozzleBalance, [this] { ChooseControlHead(project_, figures_); });
  Next next = Next::kPass;
  stages_.Run(CalculationStage::kNextIteration,
              [this, &next] { next = Diverges() ? Next::kRestart : EndPass(); });
  if (next != Next::kRestart) {
    progress_.Update();
    session_.platform.shell.Yield();
  }
  return next;
}

// The second time is for the flows that the first balance of the loops brings.
void BalanceRun::FindLengths() {
  if (project_.Iteration > 1 || project_.RestartState != 0) return;
  for (int pipe = 1; pipe <= project_.PipeCount; ++pipe) FindLength(session_, pipe);
}

void BalanceRun::BalanceFlows() {
  const PipeDrops drops(project_);
  for (int pipe = 1; pipe <= project_.PipeCount; ++pipe) drops.Update(pipe);
  BalanceLoops(project_);
}

void BalanceRun::FindSource() {
  const bool curve = project_.PumpCurveIndex != 0;
  project_.SourceFlow = project_.PipeFlow[1];
  project_.OffCurve = 0;
  if (heads_.empty() && !curve) figures_.highest_required = 1.0F;
  project_.SourcePressure = curve ? SupplyPressureAt(project_, project_.SourceFlow) : 0.0F;
  FindRequiredPressures(project_, heads_, figures_);
  if (project_.SourcePressure < kLeastSourcePressure) {
    project_.SourcePressure = figures_.highest_required;
  }
  if (project_.Iteration > 0 && project_.ControlHead != 0 &&
      figures_.highest_head != project_.ControlHead && !curve) {
    project_.SourcePressure = project_.HeadSourcePressure[project_.ControlHead];
  }
  CheckFinite(project_.SourceFlow);
  CheckFinite(project_.SourcePressure);
}

bool BalanceRun::Stopped() {
  session_.platform.shell.Yield();
  return project_.CalcCancelled != 0;
}

void BalanceRun::SetRelaxation() {
  if (project_.Iteration == 0) project_.Relaxation = RelaxationFor(project_, figures_);
}

bool BalanceRun::Diverges() {
  constexpr int kSettlingPasses = 2;
  if (project_.Iteration <= kSettlingPasses) return false;
  const float growth = figures_.largest_change - project_.PrevMaxChange;
  if (growth > 2.0F && project_.RestartState == 0 && project_.PumpCurveIndex == 0) {
    project_.Iteration = 0;
    project_.RestartState = kRestarted;
    return true;
  }
  if (growth < 5.0F) return false;
  project_.Relaxation += 0.05F;
  if (project_.Relaxation > kMostRelaxation) {
    project_.Relaxation = kMostRelaxation;
    return false;
  }
  project_.RestartState = kRestarted;
  return true;
}

BalanceRun::Next BalanceRun::EndPass() {
  ++project_.Iteration;
  project_.PrevMaxChange = figures_.largest_change;
  if (project_.Iteration > kLastIteration || figures_.over_final_tol == 0) return Next::kDone;
  if (figures_.over_pressure_tol > 0) return Next::kPass;
  if (project_.PressureTol <= project_.FinalTol) return Next::kDone;
  project_.PressureTol /= 10.0F;
  return Next::kPass;
}

}  // namespace zeb
