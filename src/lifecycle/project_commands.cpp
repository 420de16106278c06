#include "lifecycle/project_commands.h"

#include "model/model_state.h"
#include "project/fresh_project.h"
#include "project/head_selection.h"
#include "project/initial_head_codes.h"
#include "project/open_project.h"
#include "project/project_data_form.h"
#include "project/project_location.h"
#include "project/project_writer.h"
#include "project/save_question.h"
#include "project/undo_history.h"

namespace zeb {
namespace {

constexpr int kAddCommand = 1;

// The header fields of the project before belong to its file.
void ClearHeader(Project& project) {
  project.HeaderOrigin.clear();
  project.HeaderStamp.clear();
  project.HeaderCounts.clear();
  project.HeaderVersion.clear();
}

void ClearCounts(Project& project) {
  project.LineCount = 0;
  project.PipeTypeCount = 0;
  project.PipeSizeCount = 0;
  project.ValveCount = 0;
  project.WeldSize = 0;
  project.RuleType = 0;
}

void BeginUntitled(Project& project) {
  EraseProject(project);
  ClearCounts(project);
  ClearHeader(project);
  ResetView(project);
  project.ProjectPath = kUntitled;
  project.NewProjectFlag = 1;
  project.DataChanged = 0;
  project.AutoSavePending = 0;
  project.ModelState = model_state::kStale;
}

void ShowUntitled(Session& session) {
  Shell& shell = session.platform.shell;
  shell.SetTitle(session.project.ProductName + " Starting new ZEB Project file");
  LeaveProject(session);
  LeaveHeadSelection(session);
  session.platform.commands.ViewCommandReset();
  shell.SetPanel(Panel::kView, session.project.ViewName);
  shell.Enable(Feature::kUndo, true);
}

// A new project whose items were just applied. The window may come to the front during the check
// that follows or after it.
bool IsNewlyApplied(const Project& project) {
  const bool reading =
      project.ModelState == model_state::kRead || project.ModelState == model_state::kChecked;
  return reading && project.NewProjectFlag == 1 && project.LineCount == kItemCount;
}

void AskForFirstPipe(Session& session) {
  Project& project = session.project;
  project.CommandMode = kAddCommand;
  project.NewProjectFlag = 0;
  project.ViewName = "Plan";
  project.ViewTitle = "Plan";
  project.ViewHint = "No pipes yet specified";
  Shell& shell = session.platform.shell;
  shell.SetPanel(Panel::kMode, "ADD");
  shell.SetPanel(Panel::kView, project.ViewName);
  shell.SetPanel(Panel::kHint, project.ViewTitle + " - " + project.ViewHint);
}

void DisableDrawing(Shell& shell) {
  for (const Feature feature :
       {Feature::kDrawMenu, Feature::kCalculateMenu, Feature::kPrintMenu, Feature::kToolBars}) {
    shell.Enable(feature, false);
  }
}

}  // namespace

void Fnew(Session& session) {
  if (!CheckSaveChanges(session)) return;
  Project& project = session.project;
  BeginUntitled(project);
  ShowUntitled(session);
  ClearUndoHistory(project);
  project.UndoDescription = "New ZEB Project...";
  Revert(session);
  FillNewHeadCodes(session);
  ShowProjectData(session);
}

void Fopen(Session& session) {
  if (!CheckSaveChanges(session)) return;
  session.platform.shell.SetPanel(Panel::kHint, "Open ZEB project file");
  session.project.NewProjectFlag = 0;
  const std::string path =
      session.platform.dialogs.OpenFile(ProjectDialog(session, "Open ZEB Project?"));
  if (!path.empty()) OpenProject(session, path);
}

void OpenProjectFile(Session& session, const std::string& path) {
  if (CheckSaveChanges(session)) OpenProject(session, path);
}

bool Form_Activate(Session& session) {
  if (IsNewlyApplied(session.project)) {
    AskForFirstPipe(session);
    return true;
  }
  if (session.project.ModelState == model_state::kStale) DisableDrawing(session.platform.shell);
  return false;
}

}  // namespace zeb
