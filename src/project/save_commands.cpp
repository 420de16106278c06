#include "project/save_commands.h"

#include <string>

#include "project/backup.h"
#include "project/open_project.h"
#include "project/project_location.h"
#include "project/project_writer.h"
#include "project/save_question.h"
#include "project/undo_history.h"
#include "services/number_text.h"
#include "services/paths.h"
#include "services/project_paths.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr std::string_view kVersionMark = "_Ver";
constexpr std::string_view kExtension = ".zeb";

void ContinueOn(Session& session, const std::string& path) {
  Project& project = session.project;
  const std::string old_path = project.ProjectPath;
  SetProjectFile(session, path);
  project.UndoDescription = "File " + old_path + " saved as " + project.ProjectPath;
  ClearUndoHistory(project);
  project.NewProjectFlag = 0;  // there is a file now
  ReadAndCheck(session);
}

std::string NameBeforePoint(const std::string& path) {
  const std::string name = ReturnFileName(path);
  return name.substr(0, name.find('.'));
}

std::string WithVersionMark(const std::string& name) {
  return ContainsNoCase(name, kVersionMark) ? name : name + std::string(kVersionMark);
}

std::string BeforeLastVersionMark(const std::string& name) {
  return name.substr(0, UpperCase(name).rfind(UpperCase(kVersionMark)));
}

// The first path of the row name_Ver, name_Ver1, name_Ver2... that is free.
std::string FreeVersionPath(FileSystem& files, const std::string& path) {
  const std::string folder = AddBackSlash(ReturnFolder(path));
  const std::string name = WithVersionMark(NameBeforePoint(path));
  std::string free = folder + name + std::string(kExtension);
  for (int number = 1; files.FileExists(free); ++number) {
    free = folder + BeforeLastVersionMark(name) + std::string(kVersionMark) + PlainText(number) +
           std::string(kExtension);
  }
  return free;
}

}  // namespace

void Fsav(Session& session) {
  Project& project = session.project;
  project.AutoSavePending = 1;
  if (project.ProjectPath != kUntitled) {
    BackUpFile(session, RealProjectPath(session));
  }
  (void)CheckSaveChanges(session);
  project.AutoSavePending = 0;  // the next question is asked again
}

void Fsave(Session& session) {
  FileDialog dialog = ProjectDialog(session, "Save As?");
  if (session.project.ProjectPath != kUntitled) {
    dialog.file_name = ReturnFileName(RealProjectPath(session));
  }
  const std::string path = session.platform.dialogs.SaveFile(dialog);
  if (path.empty() || !MayOverwrite(session, path)) return;
  if (!SaveProject(session, FormatInForce(session.project), path)) return;
  session.platform.shell.AddRecentFile(path);
  ContinueOn(session, path);
}

void FsaveVersion(Session& session) {
  Project& project = session.project;
  if (project.ProjectPath.empty() || project.ProjectPath == kUntitled) return;
  const std::string path = FreeVersionPath(session.platform.files, RealProjectPath(session));
  const Int16 changed = project.DataChanged;
  if (!SaveProject(session, SaveMode::kVersion3, path)) return;
  // The project's own file is as old as before.
  project.DataChanged = changed;
  if (changed > 0) session.platform.shell.SetPanelPicture(Panel::kSaveState, kPictureUnsaved);
  session.platform.dialogs.Show({.title = "ZEB Project File - Version Save",
                                 .text = "The ZEB project has just been saved as:" +
                                         std::string(kLineBreak) + ReturnFileName(path),
                                 .icon = MessageIcon::kInformation});
}

}  // namespace zeb
