#pragma once

#include "services/session.h"

namespace zeb {

// Empties the network's tables and the lines before another project takes their place.
void EraseProject(Project& project);

// The view, the add pipe form's values and the height limits as every newly read or newly begun
// project has them.
void ResetView(Project& project);

// The state and the enabled commands of a project that was just read or begun: unchanged and not
// yet checked.
void ShowFreshProject(Session& session);

}  // namespace zeb
