#pragma once

#include <QLockFile>
#include <memory>
#include <string>

#include "lifecycle/recovery.h"
#include "lifecycle/session_commands.h"
#include "posix/posix_file_system.h"
#include "posix/posix_machine.h"
#include "posix/system_clock.h"
#include "posix/zip_archive.h"
#include "services/session.h"
#include "ui/main_window.h"
#include "ui/qt_clipboard.h"
#include "ui/qt_dialogs.h"
#include "ui/qt_shell.h"

namespace zeb {

// The program with its window: the session and all that it reaches of the machine.
class Program {
 public:
  Program();
  ~Program();

  // Starts the session, with the project file of that path unless it is empty. False when the
  // program cannot go on.
  [[nodiscard]] bool Start(const std::string& path);

  [[nodiscard]] Session& TheSession() { return session_; }
  [[nodiscard]] MainWindow& Window() { return *window_; }

 private:
  void BeginRecovery();

  QtDialogs dialogs_;
  QtShell shell_;
  SessionCommands commands_;
  PosixFileSystem files_;
  SystemClock clock_;
  PosixMachine machine_;
  ZipArchive archive_{files_};
  QtClipboard clipboard_;
  Session session_;
  Recovery recovery_{session_};
  std::unique_ptr<QLockFile> recovery_lock_;  // of the one program that keeps a recovery copy
  std::unique_ptr<MainWindow> window_;
};

}  // namespace zeb
