#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/form.h"
#include "services/session.h"

namespace zeb {

// Major, minor and revision, with points between.
[[nodiscard]] std::string VersionText();

// The settings, the limits of the model, the units, the folders and automatic saving.
void TolvanSetup(Session& session);

// Keeps the existing file that the command text names, in quotes, as CommandFile.
void ReadCommandLine(Session& session, const std::string& command_text);

// False, and told, when the program cannot go on without its design authorities.
[[nodiscard]] bool LoadDesignAuthorities(Session& session);

// Clears the model and sets what a session begins with.
void StartUpfrm(Session& session);

// Runs a step of the main window's making, again while the user asks for that. False when he
// aborts the start after a failure.
[[nodiscard]] bool RunStartStep(Session& session, int number,
                                const std::function<void()>& statement);

// What the main window shows before a project is open. False when a failure made the user abort.
[[nodiscard]] bool LoadMainForm(Session& session);

// Opens the project that the program was started with.
void checkCommandLine(Session& session);

// The start of a program without a window: a cleared model with its limits, and the folders as they
// were installed. It has no settings, no session file and no automatic saving, and makes no
// backups. The design authorities are still to be read.
void StartWithoutWindow(Session& session);

// The start form. A window shows it while the main window is made.
class StartUpForm : public Form {
 public:
  StartUpForm(Session& session, std::string command_text)
      : session_(session), command_text_(std::move(command_text)) {}

  [[nodiscard]] std::string_view Name() const override { return "frmStartUp"; }

  std::string Version;

  // False when the start ends here.
  [[nodiscard]] bool Form_Load();
  // Starts the session and closes the form. False when the start ends here.
  [[nodiscard]] bool cmdContinue_Click();

 private:
  Session& session_;
  std::string command_text_;
};

}  // namespace zeb
