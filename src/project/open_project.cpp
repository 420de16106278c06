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
  session.project.NewProjectFlag = 0;
  SetProjectFile(session, path);
  session.project.LastProject = session.project.ProjectPath;
  KeepProjectFolder(session, path);
  LeaveProject(session);
  ReadAndCheck(session);
  session.platform.shell.AddRecentFile(path);
}

void LeaveProject(Session& session) {
  Shell& shell = session.platform.shell;
  for (const Feature menu : {Feature::kDrawMenu, Feature::kEditMenu, Feature::kCalculateMenu,
                             Feature::kDisplayMenu, Feature::kPrintMenu, Feature::kViewMenu}) {
    shell.Enable(menu, false);
  }
  shell.ClearPicture();
  shell.SetPanel(Panel::kErrors, session.SuppressErrors ? "[OFF]" : "[ON]");
  for (const Panel panel : {Panel::kCounts, Panel::kNodes}) shell.SetPanel(panel, "");
  for (const Panel panel : {Panel::kCounts, Panel::kNodes, Panel::kErrors})
    shell.SetPanelTip(panel, "");
}

}  // namespace zeb
