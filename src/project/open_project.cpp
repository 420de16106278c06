#include "project/open_project.h"

#include "project/project_location.h"
#include "project/project_reader.h"

namespace zeb {

void ReadAndCheck(Session& session) {
  ReadProject(session);
  if (session.project.LineCount > kFewestLines) {
    session.platform.commands.CheckProject(CheckMode::kComposeLines);
  }
}

void OpenProject(Session& session, const std::string& path) {
  Shell& shell = session.platform.shell;
  session.project.NewProjectFlag = 0;
  SetProjectFile(session, path);
  session.project.LastProject = session.project.ProjectPath;
  KeepProjectFolder(session, path);
  DisableProjectMenus(shell);
  shell.ClearPicture();
  shell.SetPanel(Panel::kErrors, session.SuppressErrors ? "[OFF]" : "[ON]");
  ReadAndCheck(session);
  shell.AddRecentFile(path);
}

void DisableProjectMenus(Shell& shell) {
  for (const Feature menu : {Feature::kDrawMenu, Feature::kEditMenu, Feature::kCalculateMenu,
                             Feature::kDisplayMenu, Feature::kPrintMenu, Feature::kViewMenu}) {
    shell.Enable(menu, false);
  }
}

}  // namespace zeb
