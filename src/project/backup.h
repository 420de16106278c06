#pragma once

#include <string>

#include "services/session.h"

namespace zeb {

// The extension of the backup beside a project.
inline constexpr const char* kBackupExtension = "ZE!";

// The folder `tmp` of the program folder, made on first need; without a separator at its end.
[[nodiscard]] std::string TmpFolder(const Session& session);

// Copies the file that a path means into the folder tmp, where an earlier copy goes to the trash,
// and beside itself with another extension. With `ask` the user may keep the copy that stands
// beside it, and then nothing is copied. A missing file copies nothing. Failures are shown and
// passed over, so that a project in a read-only place still opens: always true.
bool MakeBackup(Session& session, const std::string& stated, const std::string& extension,
                bool ask);

// The same for a file of exactly this path, with the usual extension and without a question.
void BackUpFile(Session& session, const std::string& path);

}  // namespace zeb
