#pragma once

#include <optional>
#include <string>

namespace zeb {

enum class MessageIcon { kNone, kInformation, kQuestion, kWarning, kStop };

enum class MessageButtons { kOk, kOkCancel, kAbortRetryIgnore, kYesNo, kRetryCancel };

enum class Answer { kOk, kCancel, kAbort, kRetry, kIgnore, kYes, kNo };

// A message box. `default_button` counts from 1 in the order of the buttons' names.
struct Message {
  std::string title;
  std::string text;
  MessageIcon icon = MessageIcon::kNone;
  MessageButtons buttons = MessageButtons::kOk;
  int default_button = 1;
};

// The default button's answer.
[[nodiscard]] Answer DefaultAnswer(const Message& message);

// An Open or Save dialog. The filter is "description|pattern".
struct FileDialog {
  std::string title;
  std::string filter;
  std::string default_extension;
  std::string folder;
  std::string file_name;
};

// The boxes that ask the user. Texts are Windows-1252.
class Dialogs {
 public:
  Dialogs() = default;
  Dialogs(const Dialogs&) = delete;
  Dialogs& operator=(const Dialogs&) = delete;
  virtual ~Dialogs() = default;

  virtual Answer Show(const Message& message) = 0;
  // Asks for a text; empty optional when cancelled.
  virtual std::optional<std::string> Input(const std::string& title, const std::string& prompt,
                                           const std::string& initial) = 0;
  // The path picked, empty when cancelled.
  virtual std::string OpenFile(const FileDialog& dialog) = 0;
  virtual std::string SaveFile(const FileDialog& dialog) = 0;
};

// Asks a question with Yes and No, of which button 1 or 2 is the default.
[[nodiscard]] bool UserAgrees(Dialogs& dialogs, const std::string& title, const std::string& text,
                              int default_button = 1);

}  // namespace zeb
