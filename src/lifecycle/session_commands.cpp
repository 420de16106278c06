#include "lifecycle/session_commands.h"

#include "check/check_project.h"
#include "check/compose_line.h"
#include "view/pointer_command.h"

namespace zeb {

void SessionCommands::CheckProject(CheckMode mode) { zeb::CheckProject(*session_, mode); }

void SessionCommands::ComposePipeLine(int pipe) { zeb::ComposePipeLine(*session_, pipe); }

void SessionCommands::ViewCommandReset() { zeb::ViewCommandReset(*session_); }

}  // namespace zeb
