#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>

#include "services/session.h"
#include "support/fakes.h"
#include "support/memory_file_system.h"
#include "support/recording_dialogs.h"
#include "ui/main_window.h"
#include "ui/qt_shell.h"

namespace zeb::test {

// The main window over fakes of everything that is no widget.
class WindowFixture : public testing::Test {
 protected:
  WindowFixture() {
    session.folders.Program = "/prog";
    session.folders.UserDataFolder = "/config/ZEB";
    files.PutFolder("/prog");
    files.PutFolder("/config/ZEB");
    session.settings.Locate("/config/ZEB", "/prog");
    shell.Attach(&window);
  }
  ~WindowFixture() override { shell.Attach(nullptr); }

  // Runs `user` once a modal window is up, such as to press its buttons.
  static void WhenModal(const std::function<void(QDialog&)>& user) {
    QTimer::singleShot(0, [user] {
      auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      user(*dialog);
    });
  }

  template <class Widget>
  static Widget& Child(QObject& parent, const char* name) {
    auto* child = parent.findChild<Widget*>(name);
    if (child == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *child;
  }

  RecordingDialogs dialogs;
  QtShell shell;
  FakeCommands commands;
  MemoryFileSystem files;
  FixedClock clock;
  FakeMachine machine;
  FakeArchive archive;
  FakeClipboard clipboard;
  Session session{Platform{dialogs, shell, commands, files, clock, machine, archive, clipboard}};
  MainWindow window{session};
};

}  // namespace zeb::test
