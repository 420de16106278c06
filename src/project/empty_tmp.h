#pragma once

#include "services/session.h"

namespace zeb {

// The command that empties the folder tmp of its backups, after a question.
void EmptyTmpFolder(Session& session);

}  // namespace zeb
