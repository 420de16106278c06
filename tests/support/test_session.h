#pragma once

#include "services/session.h"
#include "support/fakes.h"
#include "support/memory_file_system.h"
#include "support/recording_dialogs.h"
#include "support/recording_shell.h"

namespace zeb::test {

// A session over fakes, with folders on the disk in memory and three design authorities: "EN 12845
// Rules" (general, the default), "NFPA 13 Rules" and "FM Rules".
struct TestSession {
  TestSession();

  RecordingDialogs dialogs;
  RecordingShell shell;
  FakeCommands commands;
  MemoryFileSystem files;
  FixedClock clock;
  FakeMachine machine;
  FakeArchive archive;
  FakeClipboard clipboard;
  Session session{Platform{dialogs, shell, commands, files, clock, machine, archive, clipboard}};
  Project& project = session.project;
};

}  // namespace zeb::test
