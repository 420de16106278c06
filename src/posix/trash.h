#pragma once

#include <filesystem>

namespace zeb {

// Moves a file into the trash of the home folder, from where the desktop can restore it. Native
// path; raises a RuntimeFailure, and then the file stands where it was.
void MoveFileToTrash(const std::filesystem::path& file);

}  // namespace zeb
