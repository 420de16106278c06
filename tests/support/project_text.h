#pragma once

#include <string>
#include <vector>

#include "model/project.h"
#include "services/text.h"
#include "support/slots.h"

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

// Makes the texts the project's lines from `first` on, up to its last.
inline void SetLines(Project& project, const std::vector<std::string>& texts, int first = 1) {
  project.LineCount = first - 1;
  for (const std::string& text : texts) project.PipeLines[++project.LineCount] = text;
}

inline std::vector<std::string> LinesOf(const Project& project, int first = 1) {
  return Slots(project.PipeLines, first, project.LineCount);
}

}  // namespace zeb::test
