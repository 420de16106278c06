#pragma once

#include <string>

#include "platform/platform.h"

namespace zeb {

// The folder where the program's data lie. The variable ZEB_PROGRAM_FOLDER names it, else it is
// the executable's folder when that can be written and holds the data, else a folder of the
// user's. Without a separator at its end.
[[nodiscard]] std::string FindProgramFolder(const Platform& platform);

// The data as they were installed, only to be read: the same, but the installed folder in place of
// the user's.
[[nodiscard]] std::string FindInstalledData(const Platform& platform);

// Copies installed files that are missing into the user's program folder. A portable folder stays
// as it is.
void SeedProgramFolder(const Platform& platform, const std::string& program_folder);

// Copies the files of a folder and of the folders in it, except those that are there.
void CopyMissingFiles(FileSystem& files, const std::string& from, const std::string& to);

}  // namespace zeb
