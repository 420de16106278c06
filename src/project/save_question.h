#pragma once

#include "services/session.h"

namespace zeb {

// What every command that closes or replaces the project runs first: a project without a file is
// given one, and changes are saved, without a question when AutoSavePending is 1. True when the
// command may go on; false when the user wants to keep working on the project or it could not be
// saved.
[[nodiscard]] bool CheckSaveChanges(Session& session);

}  // namespace zeb
