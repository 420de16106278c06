#include "batch/console_dialogs.h"

#include "batch/console_text.h"

namespace zeb {
namespace {

Answer AffirmativeAnswer(const Message& message) {
  switch (message.buttons) {
    case MessageButtons::kOk:
    case MessageButtons::kOkCancel:
      return Answer::kOk;
    case MessageButtons::kYesNo:
      return Answer::kYes;
    case MessageButtons::kAbortRetryIgnore:
    case MessageButtons::kRetryCancel:
      break;  // to retry without an end is no answer
  }
  return Answer::kCancel;
}

// Nothing changes between two tries without a user, so Retry would never end.
Answer WithoutRetry(const Message& message, Answer answer) {
  if (answer != Answer::kRetry) return answer;
  return message.buttons == MessageButtons::kRetryCancel ? Answer::kCancel : Answer::kAbort;
}

}  // namespace

Answer ConsoleDialogs::Show(const Message& message) {
  shown_.push_back(message);
  PrintError(message.title.empty() ? message.text : message.title + ": " + message.text);
  const Answer answer = answer_yes_ ? AffirmativeAnswer(message) : DefaultAnswer(message);
  return WithoutRetry(message, answer);
}

std::optional<std::string> ConsoleDialogs::Input(const std::string& /*title*/,
                                                 const std::string& /*prompt*/,
                                                 const std::string& /*initial*/) {
  return std::nullopt;
}

std::string ConsoleDialogs::OpenFile(const FileDialog& /*dialog*/) { return {}; }

std::string ConsoleDialogs::SaveFile(const FileDialog& /*dialog*/) { return {}; }

}  // namespace zeb
