#pragma once

#include <string>
#include <vector>

namespace zeb {

struct ArchiveEntry {
  std::string name;
  std::string bytes;
};

// Zip archives. An empty password means none.
class Archive {
 public:
  Archive() = default;
  Archive(const Archive&) = delete;
  Archive& operator=(const Archive&) = delete;
  virtual ~Archive() = default;

  // All entries. Raises a RuntimeFailure for a missing or broken archive or a wrong password.
  [[nodiscard]] virtual std::vector<ArchiveEntry> Read(const std::string& path,
                                                       const std::string& password) = 0;
  // Replaces the archive by one with these entries.
  virtual void Write(const std::string& path, const std::vector<ArchiveEntry>& entries,
                     const std::string& password) = 0;
};

}  // namespace zeb
