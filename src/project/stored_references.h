#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/form.h"
#include "services/session.h"

namespace zeb {

// Texts that were used for project items, offered again. Each is stored as "KEY=text" in a file of
// the user's own; see kProjectItems for the keys.

inline constexpr int kMaxReferences = 390;

[[nodiscard]] std::string ZEBJobsPath(const Session& session);

// Reads the stored references; a missing file is begun. False when the file could not be read, and
// then it should not be written either.
bool ReadZEBJobsFile(Session& session, const std::string& path);
bool SaveZEBJobData(Session& session);

// The texts stored for a key, oldest first.
[[nodiscard]] std::vector<std::string> ReferencesOf(const Project& project, std::string_view key);

// Stores a text for a key; false when it is stored already or there is no more room.
bool AddReference(Project& project, std::string_view key, std::string_view text);

// The form that empties the list of a key.
class ResetReferencesForm : public Form {
 public:
  ResetReferencesForm(Session& session, std::string_view key);

  [[nodiscard]] std::string_view Name() const override { return "ZEBF18"; }
  [[nodiscard]] std::vector<std::string> Rows() const;

  // Marks all texts of the key but the last as deleted.
  void Command2_Click();
  // Drops what is marked and writes the file.
  void Command1_Click();

  std::string Caption = "Resetting of list of stored references";
  std::string FrameCaption;

 private:
  Session& session_;
  std::string key_;
};

}  // namespace zeb
