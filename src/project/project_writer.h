#pragma once

#include <string>

#include "services/session.h"

namespace zeb {

// The project that has no file yet.
inline constexpr const char* kUntitled = "[Untitled]";

// What a saved file holds besides the text lines and END.
enum class SaveMode {
  kLinesOnly = 0,   // a header without counts and version; no head codes
  kVersion1 = 1,    // header and head codes
  kVersion2 = 2,    // also the user, the computer and two empty lines
  kVersion3 = 3,    // the same; read back, empty lines keep their number
  kPumpRecord = 4,  // version 3 with the supply's values in the third line
};

// The format in force.
[[nodiscard]] SaveMode FormatInForce(const Project& project);

// A first header field that begins with a time, such as 09:41, marks a file of the oldest kind.
[[nodiscard]] bool IsLegacyOrigin(const std::string& origin);

// Writes the project's lines and head codes to `path` or, when that is empty, to the project's own
// file, after a backup of what stands there. Clears DataChanged and AutoSavePending. False when
// nothing was written: the project has no file, or the user gave up after a failure; what stood in
// the file then still does.
bool SaveProject(Session& session, SaveMode mode, const std::string& path = {});

// Writes a copy in format 3 without a backup; the project counts as changed as before. Raises the
// failures of the file system.
void WriteProjectCopy(Session& session, const std::string& path);

// Writes the project with its pipe lines composed afresh from the tables: no comments, no deleted
// pipes, no backup. Heads that are not selected are left out by the composition. False when the
// user gave up after a failure.
bool SaveCheckedCopy(Session& session, const std::string& path);

}  // namespace zeb
