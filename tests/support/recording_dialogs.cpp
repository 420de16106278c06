#include "support/recording_dialogs.h"

#include <utility>

namespace zeb::test {
namespace {

template <class T>
T NextOr(std::deque<T>& answers, T otherwise) {
  if (answers.empty()) return otherwise;
  T answer = std::move(answers.front());
  answers.pop_front();
  return answer;
}

}  // namespace

Answer RecordingDialogs::Show(const Message& message) {
  messages.push_back(message);
  return NextOr(answers, DefaultAnswer(message));
}

std::optional<std::string> RecordingDialogs::Input(const std::string& title,
                                                   const std::string& prompt,
                                                   const std::string& initial) {
  inputs.push_back({title, prompt, initial});
  return NextOr(input_answers, std::optional<std::string>(initial));
}

std::string RecordingDialogs::OpenFile(const FileDialog& dialog) {
  opens.push_back(dialog);
  return NextOr(open_answers, std::string());
}

std::string RecordingDialogs::SaveFile(const FileDialog& dialog) {
  saves.push_back(dialog);
  return NextOr(save_answers, std::string());
}

Texts RecordingDialogs::Titles() const {
  Texts titles;
  for (const Message& message : messages) titles.push_back(message.title);
  return titles;
}

Boxes RecordingDialogs::Shown() const {
  Boxes boxes;
  for (const Message& message : messages) boxes.emplace_back(message.title, message.text);
  return boxes;
}

}  // namespace zeb::test
