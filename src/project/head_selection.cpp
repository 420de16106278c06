#include "project/head_selection.h"

namespace zeb {

void LeaveHeadSelection(Session& session) {
  Project& project = session.project;
  // Further clicks would pick heads that do not count.
  if (project.SelectedHeadsMode == 1) session.platform.commands.ViewCommandReset();
  project.SelectedHeadsMode = 0;
  project.SelectedHeadCount = 0;
}

}  // namespace zeb
