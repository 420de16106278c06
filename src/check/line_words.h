#pragma once

#include <string_view>

namespace zeb {

// The blank-separated words of a line. Only blanks part words, so a tab is part of one.
class LineWords {
 public:
  explicit LineWords(std::string_view rest) : rest_(rest) {}

  // The next word; empty at the end of the line.
  std::string_view Next();

 private:
  std::string_view rest_;
};

// The number at the start of a text as a single. Fails with overflow beyond its range.
[[nodiscard]] float ValSingle(std::string_view text);

}  // namespace zeb
