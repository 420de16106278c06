#pragma once

#include "services/session.h"

namespace zeb {

// The head codes of a project whose file has none: every line of user.hcl, unchanged. Fails when
// the library is missing or holds more lines than the table.
void ReadLegacyHeadCodes(Session& session);

// The head codes of a new project: the lines of the library named in the settings that are not
// blank. Without any, the user is told, and one code is made.
void FillNewHeadCodes(Session& session);

}  // namespace zeb
