#pragma once

#include <string_view>

namespace zeb {

// Print the program's text as UTF-8 with plain line feeds and a line end behind.
void PrintOut(std::string_view text);
void PrintError(std::string_view text);

// Prints a text that is UTF-8 already, as it is.
void PrintUtf8(std::string_view text);

}  // namespace zeb
