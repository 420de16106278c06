#include "check/check_end.h"

#include <string>

#include "check/model_guard.h"
#include "check/summary_form.h"
#include "model/model_state.h"
#include "project/fault_report.h"
#include "project/project_data_form.h"
#include "services/number_text.h"

namespace zeb {
namespace {

void KeepSizesAsRead(Project& project) {
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    project.PipeSizeIndexAsRead[pipe] = project.PipeSizeIndex[pipe];
    project.PipeSizeAsRead[pipe] = project.PipeSize[pipe];
  }
}

void ShowCounts(Session& session) {
  const Project& project = session.project;
  const std::string pipes = SignedText(project.PipeCount);
  const std::string loops = SignedText(project.LoopCount);
  const std::string heads = SignedText(project.HeadCount);
  Shell& shell = session.platform.shell;
  shell.SetPanel(Panel::kCounts, "P:" + pipes + " L:" + loops + " H:" + heads +
                                     " A:" + FormatDecimals(project.TotalHeadArea, 1) + "m2");
  shell.SetPanelTip(Panel::kCounts, pipes + " Pipes," + loops + " Loops and" + heads +
                                        " Heads totalling" +
                                        FixedNumber(project.TotalHeadArea, 9, 3) + "m2");
}

void EnableMenus(Shell& shell) {
  for (const Feature feature :
       {Feature::kEditMenu, Feature::kDrawMenu, Feature::kCalculateMenu, Feature::kViewMenu}) {
    shell.Enable(feature, true);
  }
}

// The pointer commands that draw the network themselves.
bool DrawsItself(int command_mode) {
  return command_mode == 1 || command_mode == 5 || command_mode == 6 || command_mode >= 19;
}

}  // namespace

void FinishCheck(CheckRun& run) {
  Project& project = run.project;
  project.ProjectTitle = ItemText(project, Item::kProjectName);
  project.ModelState = model_state::kChecked;
  KeepSizesAsRead(project);
  run.session.platform.shell.SetPanel(Panel::kHint, "End of checking " + project.ProjectPath);
  if (project.WarningCount == 0 || run.mode == CheckMode::kSilent) return;
  SummaryForm form(run.session, SummaryOf::kCheck);
  run.session.platform.shell.ShowModal(form);
}

void ReportFailure(const CheckRun& run, const RuntimeFailure& failure) {
  const std::string title = "Error" + SignedText(failure.Number()) + " at line" +
                            SignedText(run.statement) + " in " + run.phase + " part";
  const std::string text = "Cannot check your job data - try getting a printout from EDIT";
  run.session.platform.dialogs.Show({.title = title, .text = text, .icon = MessageIcon::kStop});
  if (run.session.VerboseLogging) {
    run.session.log.LogError({.text = failure.Description(), .source = title});
  }
}

void EndCheck(const CheckRun& run) {
  const Project& project = run.project;
  Shell& shell = run.session.platform.shell;
  EnableMenus(shell);
  ShowCounts(run.session);
  GuardModelSize(run);
  shell.SetBusyPointer(false);
  if (project.StopFlag == kStopCheck) ShowProjectData(run.session);
  if (!DrawsItself(project.CommandMode)) shell.Redraw();
}

}  // namespace zeb
