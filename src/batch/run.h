#pragma once

#include "batch/options.h"

namespace zeb {

// Carries out the command of the options for each file; the exit status is the worst of them.
[[nodiscard]] int RunBatch(const BatchOptions& options);

}  // namespace zeb
