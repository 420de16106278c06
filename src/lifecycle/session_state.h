#pragma once

#include "services/session.h"

namespace zeb {

// Reads the session file at start: the last project, the values of the gridded layout form, the
// calculation figures, head codes and supplies. Then makes the Library folder and, at first start,
// user.hcl from the head codes. Without the file a message is shown, and there are no supplies. Of
// a damaged file a copy (.bak) is kept, and what stands before the damage is taken.
void ReadInZEBLast(Session& session);

// Writes the session file anew. Raises the failures of the file system; then the old file stands.
void WriteSessionState(Session& session);

// The figures that a session has before the file tells others.
void SetDefaultCalculationFigures(Project& project);

// The command that resets the session file: its supplies stay, all else goes back to defaults.
void mnuResetZEBlast(Session& session);

}  // namespace zeb
