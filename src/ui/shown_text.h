#pragma once

#include <QString>
#include <string_view>

namespace zeb {

// A text of the core as a label, title or message shows it, with plain line ends. Texts are
// Windows-1252, except that a file name which the code page lacks keeps its UTF-8 bytes.
[[nodiscard]] QString ShownText(std::string_view text);

// The path of a file dialog as the core opens it, and the other way.
[[nodiscard]] std::string PathFromQt(const QString& path);
[[nodiscard]] QString PathToQt(std::string_view path);

}  // namespace zeb
