#include "calc/calculation.h"

#include <algorithm>
#include <string>

#include "calc/balance_run.h"
#include "calc/calc_options_form.h"
#include "calc/calc_summary.h"
#include "calc/calculation_messages.h"
#include "calc/calculation_stages.h"
#include "calc/flow_paths.h"
#include "calc/fluid.h"
#include "calc/heads.h"
#include "calc/limit_lists.h"
#include "calc/node_pressures.h"
#include "calc/part_save.h"
#include "calc/pressure_loss.h"
#include "calc/progress_form.h"
#include "calc/remote_heads.h"
#include "calc/result_tables.h"
#include "calc/sizing_form.h"
#include "calc/source_duty.h"
#include "calc/supply_curve.h"
#include "model/model_state.h"
#include "project/undo_history.h"

namespace zeb {
namespace {

class CalculationCommand {
 public:
  CalculationCommand(Session& session, CalculationMode mode)
      : session_(session),
        project_(session.project),
        interactive_(mode == CalculationMode::kInteractive) {}

  bool Run();

 private:
  enum class Outcome { kDone, kNothingToDo, kCancelled };

  Outcome RunStages();
  void Setup();
  bool CanCalculate();
  bool AskOptions();
  template <class OptionsForm>
  bool Accepts();
  void RenewDemand();
  bool Balance();
  void StoreRun(const BalanceRun& run);
  void ShowResults();
  void FindResults();
  void SearchRemote();
  void End();
  void Cancel();
  void Fail();

  Session& session_;
  Project& project_;
  bool interactive_;
  CalculationStages stages_;
  double start_time_ = 0.0;
};

bool CalculationCommand::Run() {
  try {
    const Outcome outcome = RunStages();
    if (outcome == Outcome::kCancelled) Cancel();
    return outcome == Outcome::kDone;
  } catch (const RuntimeFailure&) {
    Fail();
    return false;
  }
}

CalculationCommand::Outcome CalculationCommand::RunStages() {
  stages_.Run(CalculationStage::kSetup, [this] { Setup(); });
  if (interactive_) {
    WarnOfCurveStart(session_);
    if (!CanCalculate()) return Outcome::kNothingToDo;
    if (!AskOptions()) return Outcome::kCancelled;
  }
  if (!Balance()) return Outcome::kCancelled;
  if (interactive_) ShowResults();
  return Outcome::kDone;
}

void CalculationCommand::Setup() {
  ClearResultValues(project_);
  project_.CalcCancelled = 0;
  project_.PipeError.Clear();
  project_.ModelState = model_state::kChecked;
  project_.LimitListKind = 1;
  ReadFluidSettings(project_);
  SelectSupply(project_);
  ResetBalance(project_);
}

bool CalculationCommand::CanCalculate() {
  const bool no_heads = OperatingHeads(project_).empty();
  if (project_.PipeCount < 2 || (no_heads && project_.HydrantCount == 0)) {
    ShowNothingOperates(session_);
    return false;
  }
  if (no_heads && project_.PumpCurveIndex == 0) {
    ShowHydrantsNeedCurve(session_);
    return false;
  }
  WarnOfHighHead(session_);
  WarnOfHighDensity(session_);
  return true;
}

// What is chosen in the dialog takes part in this calculation.
bool CalculationCommand::AskOptions() {
  const std::string supply = ItemText(project_, Item::kSupply);
  const std::string comments = ItemText(project_, Item::kComments);
  const bool sizes = project_.UnsizedCount > 0;
  stages_.Enter(CalculationStage::kShowBox);
  const bool accepted = sizes ? Accepts<SizingForm>() : Accepts<CalcOptionsForm>();
  session_.platform.shell.Yield();
  // Reading the project again for new sizes can end with the user stopping it.
  if (!accepted || project_.CalcCancelled != 0 || project_.ModelState != model_state::kChecked) {
    return false;
  }
  ReadFluidSettings(project_);
  SelectSupply(project_);
  const bool same_demand = !sizes && supply == ItemText(project_, Item::kSupply) &&
                           comments == ItemText(project_, Item::kComments);
  if (!same_demand && project_.PumpCurveIndex != 0) RenewDemand();
  return true;
}

template <class OptionsForm>
bool CalculationCommand::Accepts() {
  OptionsForm form(session_);
  session_.platform.shell.ShowModal(form);
  return form.Accepted();
}

// The demand that the summary tells beside the supply is worked out before the dialog, where it may
// have been without a supply, or with other sizes and settings.
void CalculationCommand::RenewDemand() {
  SilentDemand(session_);
  if (project_.UnsizedCount > 0) {
    session_.platform.commands.CheckProject(CheckMode::kSilent);
    project_.SizedCount = 0;
  }
  Setup();
}

bool CalculationCommand::Balance() {
  constexpr int kQuickHeadCount = 10;
  Shell& shell = session_.platform.shell;
  if (interactive_) {
    shell.SetPanel(Panel::kHint, "Started on calculations for " + project_.ProjectPath + " ...");
  }
  start_time_ = session_.platform.clock.Seconds();
  ProgressWindow progress(session_, interactive_ && project_.HeadCount > kQuickHeadCount);
  shell.Yield();
  BalanceRun run(session_, stages_, progress);
  if (!run.Run()) return false;
  stages_.Run(CalculationStage::kPressures, [&] { StoreRun(run); });
  return true;
}

void CalculationCommand::StoreRun(const BalanceRun& run) {
  ClearNodePressures(project_);
  for (int pipe = 1; pipe <= project_.PipeCount; ++pipe) {
    project_.PipeVelocity[pipe] =
        static_cast<float>(PipeVelocityOf(project_.PipeFlow[pipe], BoreOf(project_, pipe)));
  }
  project_.IterationCount = project_.Iteration;
  project_.NodeFlowError = run.LargestHeadFlowChange();
}

void CalculationCommand::ShowResults() {
  stages_.Run(CalculationStage::kPressures, [this] { SpreadNodePressures(project_); });
  stages_.Run(CalculationStage::kMinMax, [this] { FindResults(); });
  WarnOfManyIterations(session_);
  WarnOfUnlikelyDuty(session_);
  WarnOfLowEndPressures(session_);
  ShowLimitLists(session_);
  SearchRemote();
  WarnOfFlowOffCurve(session_);
  stages_.Enter(CalculationStage::kSummary);
  BuildCalcSummary(session_);
  End();
}

void CalculationCommand::FindResults() {
  project_.RemotestHead = project_.ControlHead;
  project_.RemotestNode = NodeOfHead(project_, project_.ControlHead);
  ComputeResultTables(session_);
  constexpr double kLeastSeconds = 0.01;
  const double seconds = session_.platform.clock.Seconds() - start_time_;
  project_.CalculationTime = static_cast<float>(std::max(seconds, kLeastSeconds));
}

void CalculationCommand::SearchRemote() {
  SearchRemoteHeads(session_);
  if (project_.RuleType != kRulesGeneral) project_.MrHead1 = project_.RemotestHead;
}

void CalculationCommand::End() {
  Shell& shell = session_.platform.shell;
  project_.ModelState = model_state::kCalculated;
  shell.SetPanel(Panel::kHint, project_.ResultLine + " calculated");
  project_.UndoDescription = "Calculated";
  Revert(session_);
  for (const Feature feature : {Feature::kDisplayMenu, Feature::kPrintMenu, Feature::kReport}) {
    shell.Enable(feature, true);
  }
  ShowCalcSummary(session_);
  OfferPartSave(session_);
  session_.platform.commands.ViewCommandReset();
  shell.Redraw();
}

void CalculationCommand::Cancel() {
  project_.SourceFlow = 0.0F;
  project_.SourcePressure = 0.0F;
  project_.ModelState = model_state::kRead;
  session_.platform.commands.ViewCommandReset();
}

void CalculationCommand::Fail() {
  session_.log.LogError({.text = "Calc Mod line: " + std::to_string(stages_.Statement()),
                         .source = "Calculation." + std::string(stages_.Name()),
                         .line = stages_.Statement()});
  if (interactive_) ShowCalculationFailed(session_);
  Cancel();
}

}  // namespace

bool Calculation(Session& session, CalculationMode mode) {
  if (mode == CalculationMode::kInteractive &&
      session.project.ModelState == model_state::kCalculated) {
    return true;
  }
  return CalculationCommand(session, mode).Run();
}

}  // namespace zeb
