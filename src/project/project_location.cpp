#include "project/project_location.h"

#include "services/paths.h"
#include "services/procedure.h"
#include "services/project_paths.h"
#include "services/text.h"

namespace zeb {

std::string ProjectDialogFolder(Session& session) {
  const Folders& folders = session.folders;
  const bool exists = session.platform.files.FolderExists(folders.LastFolder);
  return exists ? folders.LastFolder : folders.MyFolder;
}

FileDialog ProjectDialog(Session& session, const std::string& title) {
  return {.title = title,
          .filter = session.project.ProductName + " Files|*.ZEB",
          .default_extension = "zeb",
          .folder = ProjectDialogFolder(session),
          .file_name = {}};
}

bool MayOverwrite(Session& session, const std::string& path) {
  return !session.platform.files.FileExists(path) ||
         UserAgrees(session.platform.dialogs, "Existing File Name",
                    "This file name already exists shall I overwrite?");
}

void SetProjectFile(Session& session, const std::string& path) {
  session.project.ProjectPath = UpperCase(path);
  RememberRealPath(session, path);
}

void KeepProjectFolder(Session& session, const std::string& path) {
  const std::string folder = ReturnFolder(path);
  session.project.ProjectFolder = folder;
  session.folders.LastFolder = folder;
  Procedure procedure(session, "Open_Save", "KeepProjectFolder");
  procedure.Step(20, [&] { session.settings.SetIniValue(setting::kDirPath, folder); });
  procedure.Step(30, [&] { session.settings.SetIniValue(setting::kProjFolder, folder); });
}

}  // namespace zeb
