#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "model/failure.h"
#include "platform/archive.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/commands.h"
#include "platform/file_system.h"
#include "platform/machine.h"

namespace zeb::test {

// A clock that only moves when a test moves it.
class FixedClock final : public Clock {
 public:
  [[nodiscard]] DateTime Now() override { return now; }
  [[nodiscard]] double Seconds() override { return seconds; }

  DateTime now{2026, 11, 22, 9, 5, 7};
  double seconds = 0.0;
};

class FakeMachine final : public Machine {
 public:
  [[nodiscard]] std::string UserName() override { return user; }
  [[nodiscard]] std::string ComputerName() override { return computer; }
  [[nodiscard]] std::string ExecutableFolder() override { return "/prog"; }
  [[nodiscard]] std::string DocumentsFolder() override { return "/docs"; }
  [[nodiscard]] std::string ConfigFolder() override { return "/config"; }
  [[nodiscard]] std::string DesktopFolder() override { return desktop; }
  [[nodiscard]] std::string Environment(const std::string& name) override {
    return environment[name];
  }
  void MoveToTrash(const std::string& path) override {
    trashed.push_back(path);
    if (files != nullptr) files->Remove(path);
  }
  [[nodiscard]] std::string NewIdentifier() override { return "ID0123456789"; }

  std::string user = "USER";
  std::string computer = "COMPUTER";
  std::string desktop = "/desktop";
  std::map<std::string, std::string> environment;
  std::vector<std::string> trashed;
  FileSystem* files = nullptr;  // where a trashed file is taken away
};

// Archives by path, each with the password that opens it.
class FakeArchive final : public Archive {
 public:
  struct Content {
    std::vector<ArchiveEntry> entries;
    std::string password;
  };

  [[nodiscard]] std::vector<ArchiveEntry> Read(const std::string& path,
                                               const std::string& password) override {
    const auto found = archives.find(path);
    if (found == archives.end()) throw RuntimeFailure(failure::kFileNotFound);
    if (found->second.password != password) throw RuntimeFailure(failure::kPermissionDenied);
    return found->second.entries;
  }
  void Write(const std::string& path, const std::vector<ArchiveEntry>& entries,
             const std::string& password) override {
    archives[path] = {entries, password};
    if (files != nullptr) files->WriteFile(path, "archive");
  }

  std::map<std::string, Content> archives;
  FileSystem* files = nullptr;  // where a written archive also stands as a file
};

class FakeClipboard final : public Clipboard {
 public:
  void SetText(const std::string& text) override { content = text; }
  [[nodiscard]] std::string Text() override { return content; }

  std::string content;
};

// Keeps which commands were started, and runs their hooks.
class FakeCommands final : public Commands {
 public:
  void CheckProject(CheckMode mode) override {
    checks.push_back(mode);
    if (on_check) on_check(mode);
  }
  void ComposePipeLine(int pipe) override {
    composed.push_back(pipe);
    if (on_compose) on_compose(pipe);
  }
  void ViewCommandReset() override { ++view_resets; }

  std::vector<CheckMode> checks;
  std::vector<int> composed;
  int view_resets = 0;
  std::function<void(CheckMode)> on_check;
  std::function<void(int)> on_compose;
};

}  // namespace zeb::test
