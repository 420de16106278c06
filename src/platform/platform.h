#pragma once

#include "platform/archive.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/commands.h"
#include "platform/dialogs.h"
#include "platform/file_system.h"
#include "platform/machine.h"
#include "platform/shell.h"

namespace zeb {

// Everything outside the core, by reference: one set for the window, one for the command line, one
// of fakes for the tests.
struct Platform {
  Dialogs& dialogs;
  Shell& shell;
  Commands& commands;
  FileSystem& files;
  Clock& clock;
  Machine& machine;
  Archive& archive;
  Clipboard& clipboard;
};

}  // namespace zeb
