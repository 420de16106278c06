#pragma once

#include "platform/commands.h"
#include "services/session.h"

namespace zeb {

// Rebuilds the tables from the project's lines and judges them, from scratch. Faults are reported,
// numbered, and worked around; the summary tells what the input amounts to. A check that ran to
// its end leaves ModelState at 2, one that was stopped or failed at 1.
void CheckProject(Session& session, CheckMode mode);

}  // namespace zeb
