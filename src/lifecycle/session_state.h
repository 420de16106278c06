#pragma once

#include "services/session.h"

namespace zeb {

enum class SessionFileState { kMissing, kDamaged, kWhole };

// Reads the session file: the last project, the values of the gridded layout form, the calculation
// figures, head codes and supplies. Without the file a message is shown, and there are no supplies;
// of a damaged one what stands before the damage is taken.
SessionFileState ReadSessionFile(Session& session);

// The same at start. Of a damaged file a copy (.bak) is kept. Then makes the Library folder and, at
// first start, user.hcl from the head codes.
void ReadInZEBLast(Session& session);

// Writes the session file anew. Raises the failures of the file system; then the old file stands.
void WriteSessionState(Session& session);

// The figures that a session has before the file tells others.
void SetDefaultCalculationFigures(Project& project);

// The command that resets the session file: its supplies stay, all else goes back to defaults.
void mnuResetZEBlast(Session& session);

}  // namespace zeb
