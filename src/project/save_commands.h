#pragma once

#include "services/session.h"

namespace zeb {

// Save, without a question unless the project has no file yet.
void Fsav(Session& session);

// Save As. The session continues on the new file, which is read in again and checked.
void Fsave(Session& session);

// Saves a numbered copy beside the project; the session stays on the project's own file.
void FsaveVersion(Session& session);

}  // namespace zeb
