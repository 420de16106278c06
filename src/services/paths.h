#pragma once

#include <string>
#include <string_view>

namespace zeb {

// Paths are plain strings with the native separator '/'; the helpers accept '\' as well.

// The folder with exactly one separator at its end.
[[nodiscard]] std::string AddBackSlash(std::string_view folder);
// The name without its folder.
[[nodiscard]] std::string ReturnFileName(std::string_view path);
// The folder without a separator at its end; empty for a bare name.
[[nodiscard]] std::string ReturnFolder(std::string_view path);
// The path up to its last point, and the new extension (given without a point).
[[nodiscard]] std::string ChangeFileExt(std::string_view path, std::string_view extension);
// The path shortened to at most `length` characters where possible: its head, "..\" for each
// middle folder left out, and its tail.
[[nodiscard]] std::string ShortPath(std::string_view path, int length);

[[nodiscard]] bool SamePathNoCase(std::string_view a, std::string_view b);

}  // namespace zeb
