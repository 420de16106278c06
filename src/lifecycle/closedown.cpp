#include "lifecycle/closedown.h"

#include <string>

#include "lifecycle/session_state.h"
#include "project/save_question.h"
#include "services/procedure.h"
#include "services/text.h"

namespace zeb {
namespace {

void ReportMissingFile(Session& session) {
  const std::string text = "Unable to find the ZEBLAST.TXT file ZEB cannot continue " +
                           std::string(kLineBreak) + session.folders.SessionFile;
  session.platform.dialogs.Show(
      {.title = "Critical Error ", .text = text, .icon = MessageIcon::kStop});
  session.log.LogError({.text = text, .source = "ZEB.Module3.closedown", .line = 10});
}

}  // namespace

bool closedown(Session& session) {
  Project& project = session.project;
  if (!session.platform.files.FileExists(session.folders.SessionFile)) ReportMissingFile(session);
  if (project.ClosedownDone == 1) return true;
  if (!CheckSaveChanges(session)) return false;
  Procedure procedure(session, "Module3", "closedown");
  procedure.Step(50, [&] { WriteSessionState(session); });
  project.ClosedownDone = 1;
  return true;
}

bool Fexit(Session& session) {
  if (!closedown(session)) return false;
  session.log.LogError(
      {.text = "Session closed", .source = "ZEB.ZEBF03.Fexit_Click", .brief = true});
  return true;
}

}  // namespace zeb
