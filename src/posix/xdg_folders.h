#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zeb {

// The user's folders, as native paths.
[[nodiscard]] std::filesystem::path HomeFolder();
[[nodiscard]] std::filesystem::path ConfigHome();
[[nodiscard]] std::filesystem::path DataHome();

// A folder of user-dirs.dirs by its key there, such as "XDG_DESKTOP_DIR"; `fallback` within the
// home folder when that file does not name it.
[[nodiscard]] std::filesystem::path UserFolder(std::string_view key, const std::string& fallback);

}  // namespace zeb
