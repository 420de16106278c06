#pragma once

#include <string>
#include <string_view>

namespace zeb {

// Paths inside the program are Windows-1252 like all its texts, those of the system are bytes, by
// convention UTF-8. A name with characters that the code page lacks keeps its bytes inside, so that
// every file can be opened; it only shows oddly.

[[nodiscard]] std::string NativePath(std::string_view path);
[[nodiscard]] std::string PathText(std::string_view native);

}  // namespace zeb
