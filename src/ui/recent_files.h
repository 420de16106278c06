#pragma once

#include <string>
#include <vector>

#include "services/session.h"

namespace zeb {

// The projects that were opened last, the newest first, kept in the per-program store.
class RecentFiles {
 public:
  explicit RecentFiles(Session& session) : session_(session) {}

  [[nodiscard]] std::vector<std::string> Paths() const;
  void Add(const std::string& path);
  void Remove(const std::string& path);

 private:
  void Store(const std::vector<std::string>& paths);

  Session& session_;
};

}  // namespace zeb
