#pragma once

#include "services/session.h"

namespace zeb {

// Finds the program folder, opens the settings and resolves all folders of the session, in their
// order, making those of the user that are missing. A folder that cannot be made is told, and the
// start goes on.
void ResolveFolders(Session& session);

// Only what lies in the installed program folder: no settings, no session file, nothing made.
void ResolveInstalledFolders(Session& session);

}  // namespace zeb
