#include "project/save_question.h"

#include <string>

#include "project/project_location.h"
#include "project/project_writer.h"
#include "services/dates.h"
#include "services/text.h"

namespace zeb {
namespace {

bool UserDropsData(Session& session) {
  if (!UserAgrees(session.platform.dialogs, "This data will not be saved",
                  "Do you want to exit without saving this information?")) {
    return false;
  }
  session.project.DataChanged = 0;
  return true;
}

bool UserOverwrites(Session& session, const std::string& path) {
  FileSystem& files = session.platform.files;
  if (!files.FileExists(path)) return true;
  const DateTime time = files.FileTime(path);
  const std::string gap = std::string(kLineBreak) + std::string(kLineBreak);
  return UserAgrees(session.platform.dialogs, session.project.ProjectPath + " already exists",
                    "This file name has been used before." + gap + "Size is " +
                        std::to_string(files.FileSize(path)) + " bytes and was last updated on " +
                        DateText(time) + " " + TimeText(time) + gap +
                        "Do you want to overwrite the previous data?");
}

bool SaveUnderNewName(Session& session, const std::string& path) {
  Project& project = session.project;
  SetProjectFile(session, path);
  if (!UserOverwrites(session, path)) {
    project.ProjectPath = kUntitled;  // a later save must not overwrite what the user keeps
    return false;
  }
  KeepProjectFolder(session, path);
  session.platform.shell.SetTitle(project.ProductName + " - Picture screen " + project.ProjectPath);
  if (!SaveProject(session, SaveMode::kVersion3)) return false;
  session.platform.shell.AddRecentFile(path);
  return true;
}

bool NameUntitled(Session& session) {
  const std::string path =
      session.platform.dialogs.SaveFile(ProjectDialog(session, "Save the ZEB project file as"));
  return path.empty() ? UserDropsData(session) : SaveUnderNewName(session, path);
}

bool UserSaves(Session& session) {
  return UserAgrees(session.platform.dialogs, "Save ZEB Project Data",
                    "Your ZEB project data has changed do you wish to save to file? ");
}

}  // namespace

bool CheckSaveChanges(Session& session) {
  Project& project = session.project;
  if (project.ProjectPath == kUntitled && !NameUntitled(session)) return false;
  if (project.DataChanged <= 0) return true;
  if (project.AutoSavePending == 0 && !UserSaves(session)) {
    project.DataChanged = 0;
    return true;
  }
  return SaveProject(session, FormatInForce(project));
}

}  // namespace zeb
