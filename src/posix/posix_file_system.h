#pragma once

#include "platform/file_system.h"

namespace zeb {

// The files of the machine. Only regular files are read and written: a pipe or a device in their
// place fails at once with 75 instead of waiting. Times are local.
class PosixFileSystem final : public FileSystem {
 public:
  // True for anything that is no folder, so that nothing is overwritten unasked.
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
  // The file keeps the permissions of the one it replaces.
  void Rename(const std::string& from, const std::string& to) override;
  void FlushFolder(const std::string& folder) override;
  void Remove(const std::string& path) override;
  void MakeFolder(const std::string& folder) override;
};

}  // namespace zeb
