#include "project/pipe_text_boxes.h"

#include "model/failure.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr std::string_view kEnd = "END";
constexpr std::string_view kDeletedLine = "Z!Z!";

std::vector<std::string> ShownLines(const Project& project) {
  std::vector<std::string> lines;
  for (int line = kFirstPipeLine; line <= project.LineCount; ++line) {
    const std::string& text = project.PipeLines[line];
    if (!text.starts_with(kDeletedLine) && Trim(text) != kEnd) lines.push_back(text);
  }
  return lines;
}

}  // namespace

void PipeTextBoxes::Load(Session& session) {
  Boxes.fill({});
  without_room_.clear();
  std::size_t box = 0;
  for (const std::string& line : ShownLines(session.project)) {
    const std::string text = line + std::string(kLineBreak);
    if (box < kBoxes && Boxes[box].size() + text.size() > kBoxSize) ++box;
    if (box < kBoxes) {
      Boxes[box] += text;
    } else {
      without_room_.push_back(line);
    }
  }
  loaded_ = Boxes;
  if (without_room_.empty()) return;
  session.platform.dialogs.Show({.title = "Job is much too big",
                                 .text = "Text box 4 has too many chars",
                                 .icon = MessageIcon::kWarning});
}

std::vector<std::string> PipeTextBoxes::Lines() const {
  std::vector<std::string> lines;
  for (const std::string& box : Boxes) {
    for (const std::string& line : SplitLines(box)) {
      const std::string trimmed = Trim(line);
      if (trimmed != kEnd) lines.push_back(trimmed);
    }
  }
  lines.insert(lines.end(), without_room_.begin(), without_room_.end());
  return lines;
}

void PipeTextBoxes::Store(Project& project) const {
  const std::vector<std::string> lines = Lines();
  if (lines.size() > kLastLine - kItemCount) {
    throw RuntimeFailure(failure::kSubscriptOutOfRange,
                         "There are more pipe lines than a project can hold");
  }
  project.PipeLines.Clear(kFirstPipeLine);
  int count = kItemCount;
  for (const std::string& line : lines) project.PipeLines[++count] = line;
  project.LineCount = count;
}

}  // namespace zeb
