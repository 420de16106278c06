#pragma once

#include "platform/archive.h"
#include "platform/file_system.h"

namespace zeb {

// Zip archives, with AES-256 under a password. They are packed and unpacked in memory, so an
// archive is written like any other whole file. A broken archive, or one with entries outside its
// own folder, raises failure 57, a wrong password 70.
class ZipArchive final : public Archive {
 public:
  explicit ZipArchive(FileSystem& files) : files_(files) {}

  [[nodiscard]] std::vector<ArchiveEntry> Read(const std::string& path,
                                               const std::string& password) override;
  void Write(const std::string& path, const std::vector<ArchiveEntry>& entries,
             const std::string& password) override;

 private:
  FileSystem& files_;
};

}  // namespace zeb
