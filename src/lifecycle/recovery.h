#pragma once

#include <cstddef>
#include <string>

#include "services/session.h"

namespace zeb {

// Keeps a copy of changes that are not saved, so that the session after one that was cut off can
// offer them. Only one running program may use it.
class Recovery {
 public:
  explicit Recovery(Session& session) : session_(session) {}

  // To be called first: offers what a session that was cut off has left. True when the user took
  // it; the project then counts as changed.
  bool Offer();
  // To be called after each command: writes the copy when unsaved changes are new, drops it once
  // there are none, and writes the session file when a supply is new. A file that cannot be written
  // is no failure of the command.
  void Keep();
  // The session ends as it should.
  void Drop();

 private:
  [[nodiscard]] std::string CopyPath() const;
  [[nodiscard]] std::string NotePath() const;
  [[nodiscard]] std::size_t Content() const;
  [[nodiscard]] std::size_t Supplies() const;
  void KeepProject();
  void KeepSupplies();
  void Try(void (Recovery::*write)());
  void WriteCopy();
  void WriteSession();
  void Restore(const std::string& project_path);

  Session& session_;
  std::size_t kept_content_ = 0;
  std::size_t kept_supplies_ = 0;
  bool kept_ = false;
};

}  // namespace zeb
