#pragma once

#include <string_view>

#include "platform/commands.h"
#include "services/session.h"

namespace zeb {

inline constexpr std::string_view kStandardPipeData = "STD_PIPE.PDT";

// Reads and judges the file `PipeDataFile` of the pipe data folder into the pipe data tables, with
// the changes of C and of fitting lengths that the rule type in force asks for. Faults 20 to 29 are
// reported as they are met, without a box in silent mode.
//
// A file that cannot be read is looked for in the standard folder, then replaced by the standard
// file. When that fails too, or when the user stops at a fault, StopFlag is kStopCheck and the
// three counts stay as they were; otherwise they are those of the file.
void ReadPipeData(Session& session, CheckMode mode);

}  // namespace zeb
