#include "project/fresh_project.h"

#include "model/model_state.h"

namespace zeb {
namespace {

constexpr int kPlanView = 1;
constexpr float kZLimitOff = 1.0F;
constexpr float kHighestZ = 10.0F;

// They refer to pipes and heads of the project before.
void ClearMarks(Project& project) {
  project.PickedPipe = 0;
  project.HighlightedPipe = 0;
  project.MarkedNode = 0;
  project.RemotestHead = 0;
  project.MrHead1 = 0;
  project.MrHead2 = 0;
  project.MrHead3 = 0;
  project.MrHead4 = 0;
}

void ResetAddPipeTexts(Project& project) {
  project.AddPipeTexts.fill("");
  project.AddPipeTexts[3] = "1";
  project.AddPipeTexts[6] = "1";
  project.AddPipeTexts[8] = "3";
  project.AddPipeTexts[13] = "0";
}

}  // namespace

void EraseProject(Project& project) {
  project.PipeLines.Clear();
  ForEachPipeRow(project, [](const char*, auto& row) { row.Clear(); });
  ForEachHeadRealRow(project, [](const char*, auto& row) { row.Clear(); });
  project.HeadOn.Clear();
  ClearCheckValues(project);  // the counts of what is gone
}

void ResetView(Project& project) {
  project.ViewName = "Plan";
  project.ViewTitle = "Plan";
  project.ViewMode = kPlanView;
  project.ZoomState = 0;
  project.ZoomKept = 0;
  project.ColourByClass = 0;
  project.ShowNodesOnce = 0;
  project.DisplayItem = 0;
  project.ZLimitOn = kZLimitOff;
  project.MinZLimit = 0.0F;
  project.MaxZLimit = kHighestZ;
  ClearMarks(project);
  ResetAddPipeTexts(project);
}

void ShowFreshProject(Session& session) {
  Project& project = session.project;
  project.DataChanged = 0;
  project.ModelState = model_state::kRead;
  project.AutoSavePending = 0;
  ResetView(project);
  session.platform.commands.ViewCommandReset();

  Shell& shell = session.platform.shell;
  shell.Enable(Feature::kEditMenu, true);
  shell.Enable(Feature::kCalculateMenu, false);
  shell.SetPanel(Panel::kHint, "");
  shell.SetPanel(Panel::kView, project.ViewName);
  for (const Feature feature :
       {Feature::kSave, Feature::kSaveAs, Feature::kPrintInput, Feature::kUndo}) {
    shell.Enable(feature, true);
  }
  shell.SetBusyPointer(false);
}

}  // namespace zeb
