#include "calc/part_save.h"

#include <string>

#include "calc/heads.h"
#include "project/project_location.h"
#include "project/project_writer.h"
#include "services/number_text.h"
#include "services/paths.h"

namespace zeb {
namespace {

// Empty when the user thinks better of it.
std::string AskForFile(Session& session) {
  const std::string path =
      session.platform.dialogs.SaveFile(ProjectDialog(session, "New ZEB Project file name"));
  return path.empty() || MayOverwrite(session, path) ? path : std::string();
}

}  // namespace

void SavePartProject(Session& session) {
  if (!UserAgrees(session.platform.dialogs, "Save the operating heads",
                  "Do you wish to save the operating heads in to a new ZEB Project file?")) {
    return;
  }
  const std::string path = AskForFile(session);
  if (path.empty() || !SaveCheckedCopy(session, path)) return;
  const int count = static_cast<int>(OperatingHeads(session.project).size());
  session.platform.shell.SetPanel(
      Panel::kHint, "File " + ReturnFileName(path) + " saved with" + SignedText(count) + " heads");
}

void OfferPartSave(Session& session) {
  const Project& project = session.project;
  const bool picked = project.SelectedHeadsMode == 1 && project.SelectedHeadCount > 0;
  if (project.PartSave != 0 && picked && project.HeadDensityEdited == 0) SavePartProject(session);
}

}  // namespace zeb
