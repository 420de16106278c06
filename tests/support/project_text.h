#pragma once

#include <string>
#include <vector>

#include "model/limits.h"
#include "services/text.h"

namespace zeb::test {

// The bytes of a file of these lines.
inline std::string FileText(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append(kLineBreak);
  return text;
}

// The items "item 1" to "item 18".
inline std::vector<std::string> NumberedItems() {
  std::vector<std::string> items;
  for (int item = 1; item <= kItemCount; ++item) items.push_back("item " + std::to_string(item));
  return items;
}

inline std::vector<std::string> Joined(std::vector<std::string> lines,
                                       const std::vector<std::string>& more) {
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

}  // namespace zeb::test
