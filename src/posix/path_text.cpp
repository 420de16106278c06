#include "posix/path_text.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "services/code_page.h"

namespace zeb {
namespace {

// Bytes that are UTF-8 already are a name kept as it was. Text of the code page hardly ever is,
// unless it is plain ASCII, where both are the same.
std::string NativeName(std::string_view name) {
  return IsUtf8(name) ? std::string(name) : ToUtf8(name);
}

std::string NameText(std::string_view native) {
  const std::optional<std::string> text = FromUtf8(native);
  return text && NativeName(*text) == native ? *text : std::string(native);
}

template <class Convert>
std::string EachName(std::string_view path, Convert convert) {
  std::string converted;
  while (true) {
    const std::size_t end = std::min(path.find('/'), path.size());
    converted += convert(path.substr(0, end));
    if (end == path.size()) return converted;
    converted += '/';
    path.remove_prefix(end + 1);
  }
}

}  // namespace

std::string NativePath(std::string_view path) { return EachName(path, NativeName); }

std::string PathText(std::string_view native) { return EachName(native, NameText); }

}  // namespace zeb
