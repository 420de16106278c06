#pragma once

#include <string>

#include "services/session.h"

namespace zeb {

// Where the dialogs for project files start: the last folder if it exists, else "My ZEB".
[[nodiscard]] std::string ProjectDialogFolder(Session& session);

// A dialog for project files, with its title.
[[nodiscard]] FileDialog ProjectDialog(Session& session, const std::string& title);

// True when no file is there, or when the user lets it be overwritten.
[[nodiscard]] bool MayOverwrite(Session& session, const std::string& path);

// Makes a file the open project's, under its path as the user picked it; ProjectPath is that path
// in upper case.
void SetProjectFile(Session& session, const std::string& path);

// Takes the folder of a project file as the project's, and keeps it for the dialogs and for later
// sessions.
void KeepProjectFolder(Session& session, const std::string& path);

}  // namespace zeb
