#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zeb {

// Texts are single bytes of the code page Windows-1252 inside the program; what surrounds it speaks
// UTF-8.

[[nodiscard]] std::string ToUtf8(std::string_view text);
// Empty when the bytes are no UTF-8 or hold a character that the code page lacks.
[[nodiscard]] std::optional<std::string> FromUtf8(std::string_view utf8);
// Well-formed UTF-8, plain ASCII included.
[[nodiscard]] bool IsUtf8(std::string_view bytes);

}  // namespace zeb
