#include "platform/dialogs.h"

#include <array>
#include <cstddef>
#include <vector>

namespace zeb {
namespace {

std::vector<Answer> AnswersOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::kOk:
      return {Answer::kOk};
    case MessageButtons::kOkCancel:
      return {Answer::kOk, Answer::kCancel};
    case MessageButtons::kAbortRetryIgnore:
      return {Answer::kAbort, Answer::kRetry, Answer::kIgnore};
    case MessageButtons::kYesNo:
      return {Answer::kYes, Answer::kNo};
    case MessageButtons::kRetryCancel:
      return {Answer::kRetry, Answer::kCancel};
  }
  return {Answer::kOk};
}

}  // namespace

Answer DefaultAnswer(const Message& message) {
  const std::vector<Answer> answers = AnswersOf(message.buttons);
  const auto index = static_cast<std::size_t>(message.default_button - 1);
  return index < answers.size() ? answers[index] : answers.front();
}

bool UserAgrees(Dialogs& dialogs, const std::string& title, const std::string& text,
                int default_button) {
  return dialogs.Show({.title = title,
                       .text = text,
                       .icon = MessageIcon::kQuestion,
                       .buttons = MessageButtons::kYesNo,
                       .default_button = default_button}) == Answer::kYes;
}

}  // namespace zeb
