#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/file_system.h"

namespace zeb::test {

// A disk in memory, with absolute paths, that can fail at any operation. Only what can fail on a
// disk counts as an operation; the questions whether something exists do not.
class MemoryFileSystem final : public FileSystem {
 public:
  // The program has ended: no RuntimeFailure, so nothing in the program can act on it.
  struct Killed {};

  // Set the disk up and look at it, without counting or failing.
  void Put(const std::string& path, const std::string& bytes);
  void PutFolder(const std::string& folder);
  void SetReadOnly(const std::string& path) { read_only_.insert(path); }
  void SetTime(const std::string& path, const DateTime& time) { times_[path] = time; }
  [[nodiscard]] bool Has(const std::string& path) const { return files_.contains(path); }
  [[nodiscard]] std::string Bytes(const std::string& path) const;
  // The paths of all files, sorted.
  [[nodiscard]] std::vector<std::string> AllFiles() const;

  // The n-th operation from now, from 1, fails with that number; a write then leaves half.
  void FailAt(int n, int number);
  // The n-th operation from now, a write after half of its bytes, ends the program: it and all
  // that follow raise Killed.
  void KillAt(int n);
  // Ends failing; a killed program's disk can be used again.
  void StopFailing();
  // Operations since the last of these three calls.
  [[nodiscard]] int Operations() const { return operations_; }

  // The time that written files get.
  DateTime now{2026, 1, 2, 3, 4, 5};

  [[nodiscard]] bool FileExists(const std::string& path) override;
  [[nodiscard]] bool FolderExists(const std::string& path) override;
  [[nodiscard]] bool IsWritable(const std::string& path) override;
  [[nodiscard]] std::uint64_t FileSize(const std::string& path) override;
  [[nodiscard]] DateTime FileTime(const std::string& path) override;
  [[nodiscard]] std::vector<std::string> FileNames(const std::string& folder) override;
  [[nodiscard]] std::vector<std::string> FolderNames(const std::string& folder) override;
  [[nodiscard]] std::string ResolveLinks(const std::string& path) override;
  [[nodiscard]] std::string ReadFile(const std::string& path) override;
  void WriteFile(const std::string& path, const std::string& bytes) override;
  void AppendFile(const std::string& path, const std::string& bytes) override;
  void Rename(const std::string& from, const std::string& to) override;
  void FlushFolder(const std::string& folder) override;
  void Remove(const std::string& path) override;
  void MakeFolder(const std::string& folder) override;

 private:
  void Plan(int at, int number, bool kill);
  void CheckAlive() const;
  // Counts an operation. True when it fails now, by Fail, after what it does by half.
  [[nodiscard]] bool FailsNow();
  [[noreturn]] void Fail();
  void Count();

  std::string& Existing(const std::string& path);
  void CheckTarget(const std::string& path) const;
  void Store(const std::string& path, const std::string& before, const std::string& bytes);

  std::map<std::string, std::string> files_;
  std::map<std::string, DateTime> times_;
  std::set<std::string> folders_{"/"};
  std::set<std::string> read_only_;
  int operations_ = 0;
  int fail_at_ = 0;
  int fail_number_ = 0;
  bool kill_ = false;
  bool killed_ = false;
};

}  // namespace zeb::test
