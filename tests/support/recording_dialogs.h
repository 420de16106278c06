#pragma once

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/dialogs.h"

namespace zeb::test {

using Texts = std::vector<std::string>;
using ShownBox = std::pair<std::string, std::string>;  // title and text
using Boxes = std::vector<ShownBox>;

// Keeps every box that was shown and answers from the scripted queues. With an empty queue a
// message takes its default answer, an input keeps its initial text, a file dialog is cancelled.
class RecordingDialogs final : public Dialogs {
 public:
  struct InputBox {
    std::string title;
    std::string prompt;
    std::string initial;
  };

  Answer Show(const Message& message) override;
  std::optional<std::string> Input(const std::string& title, const std::string& prompt,
                                   const std::string& initial) override;
  std::string OpenFile(const FileDialog& dialog) override;
  std::string SaveFile(const FileDialog& dialog) override;

  // The titles of all messages, in order.
  [[nodiscard]] Texts Titles() const;
  // The titles and texts of all messages, in order.
  [[nodiscard]] Boxes Shown() const;

  std::vector<Message> messages;
  std::vector<InputBox> inputs;
  std::vector<FileDialog> opens;
  std::vector<FileDialog> saves;

  std::deque<Answer> answers;
  std::deque<std::optional<std::string>> input_answers;
  std::deque<std::string> open_answers;
  std::deque<std::string> save_answers;
};

}  // namespace zeb::test
