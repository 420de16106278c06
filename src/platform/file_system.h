#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/clock.h"

namespace zeb {

// Files and folders. Each operation either is done or raises a RuntimeFailure of the file numbers
// (52 to 76), e.g. 53 for a missing file, 61 for a full disk, 75 for a refused access.
class FileSystem {
 public:
  FileSystem() = default;
  FileSystem(const FileSystem&) = delete;
  FileSystem& operator=(const FileSystem&) = delete;
  virtual ~FileSystem() = default;

  [[nodiscard]] virtual bool FileExists(const std::string& path) = 0;
  [[nodiscard]] virtual bool FolderExists(const std::string& path) = 0;
  [[nodiscard]] virtual bool IsWritable(const std::string& path) = 0;
  [[nodiscard]] virtual std::uint64_t FileSize(const std::string& path) = 0;
  [[nodiscard]] virtual DateTime FileTime(const std::string& path) = 0;
  // Names (without folder) of the files in a folder, sorted; empty if there is no such folder.
  [[nodiscard]] virtual std::vector<std::string> FileNames(const std::string& folder) = 0;
  // Likewise the names of the folders in a folder.
  [[nodiscard]] virtual std::vector<std::string> FolderNames(const std::string& folder) = 0;
  // The path with links followed, or `path` itself when it does not exist.
  [[nodiscard]] virtual std::string ResolveLinks(const std::string& path) = 0;

  [[nodiscard]] virtual std::string ReadFile(const std::string& path) = 0;
  // Creates or truncates the file, writes all bytes and flushes them to the disk. A failure can
  // leave part of them; see WriteFileSafely for whole files.
  virtual void WriteFile(const std::string& path, const std::string& bytes) = 0;
  virtual void AppendFile(const std::string& path, const std::string& bytes) = 0;
  // Replaces `to` in one step.
  virtual void Rename(const std::string& from, const std::string& to) = 0;
  // Makes renames in the folder durable.
  virtual void FlushFolder(const std::string& folder) = 0;
  virtual void Remove(const std::string& path) = 0;
  // Makes the folder and those above it.
  virtual void MakeFolder(const std::string& folder) = 0;
};

}  // namespace zeb
