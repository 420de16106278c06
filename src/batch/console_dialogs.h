#pragma once

#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace zeb {

// Message boxes on standard error. A question takes its default, or Yes or OK with `answer_yes`;
// a dialog for a file is cancelled.
class ConsoleDialogs : public Dialogs {
 public:
  explicit ConsoleDialogs(bool answer_yes) : answer_yes_(answer_yes) {}

  Answer Show(const Message& message) override;
  std::optional<std::string> Input(const std::string& title, const std::string& prompt,
                                   const std::string& initial) override;
  std::string OpenFile(const FileDialog& dialog) override;
  std::string SaveFile(const FileDialog& dialog) override;

  // Every box shown so far, in order.
  [[nodiscard]] const std::vector<Message>& Shown() const { return shown_; }

 private:
  bool answer_yes_;
  std::vector<Message> shown_;
};

}  // namespace zeb
