#include "batch/console_text.h"

#include <iostream>

#include "services/code_page.h"
#include "services/text.h"

namespace zeb {
namespace {

void Print(std::ostream& stream, std::string_view text) {
  stream << ReplaceAll(ToUtf8(text), kLineBreak, "\n") << '\n';
}

}  // namespace

void PrintOut(std::string_view text) { Print(std::cout, text); }

void PrintError(std::string_view text) { Print(std::cerr, text); }

void PrintUtf8(std::string_view text) { std::cout << text << '\n'; }

}  // namespace zeb
