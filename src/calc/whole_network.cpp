#include "calc/whole_network.h"

namespace zeb {

bool TakeWholeNetwork(Session& session) {
  const Project& project = session.project;
  if (project.CheckBroken == 0 && project.PipeSizeCount > 0) return true;
  session.platform.commands.CheckProject(CheckMode::kKeepLines);
  return project.CheckBroken == 0;
}

}  // namespace zeb
