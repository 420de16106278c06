#pragma once

#include <string>
#include <vector>

#include "batch/console_dialogs.h"
#include "batch/console_shell.h"
#include "batch/options.h"
#include "lifecycle/session_commands.h"
#include "posix/posix_file_system.h"
#include "posix/posix_machine.h"
#include "posix/system_clock.h"
#include "posix/zip_archive.h"
#include "services/session.h"

namespace zeb {

// A session on the console: no window, no settings and no session file unless the options name
// them, and nothing of the user's is written but what a command asks for.
class BatchSession {
 public:
  explicit BatchSession(const BatchOptions& options);

  [[nodiscard]] Session& Get() { return session_; }
  // False when there are no design authorities; the message was shown.
  [[nodiscard]] bool Ready() const { return ready_; }
  [[nodiscard]] const std::vector<Message>& Messages() const { return dialogs_.Shown(); }

 private:
  class NoClipboard : public Clipboard {
   public:
    void SetText(const std::string& /*text*/) override {}
    [[nodiscard]] std::string Text() override { return {}; }
  };

  void LocateFolders(const BatchOptions& options);
  bool ReadAuthorities(const BatchOptions& options);
  bool ReadSupplies(const BatchOptions& options);

  ConsoleDialogs dialogs_;
  ConsoleShell shell_;
  SessionCommands commands_;
  PosixFileSystem files_;
  SystemClock clock_;
  PosixMachine machine_;
  ZipArchive archive_{files_};
  NoClipboard clipboard_;
  Session session_;
  bool ready_ = false;
};

}  // namespace zeb
