#include "ui/program.h"

#include <QGuiApplication>

#include "lifecycle/startup.h"
#include "ui/icons.h"
#include "ui/shown_text.h"
#include "ui/theme.h"

namespace zeb {

Program::Program()
    : session_(
          Platform{dialogs_, shell_, commands_, files_, clock_, machine_, archive_, clipboard_}) {
  commands_.Bind(session_);
}

Program::~Program() { shell_.Attach(nullptr); }

bool Program::Start(const std::string& path) {
  QGuiApplication::setWindowIcon(ProgramIcon("zeb"));
  ApplyTheme(kThemeSystem);
  StartUpForm start(session_, path.empty() ? "" : '"' + path + '"');
  if (!start.Form_Load()) return false;
  ApplyTheme(ShownText(session_.settings.GetIniValue(setting::kTheme)));
  window_ = std::make_unique<MainWindow>(session_);
  shell_.Attach(window_.get());
  window_->Start();
  QCoreApplication::processEvents();
  bool started = false;
  window_->TheUi().runner.RunCommand("frmStartUp", "cmdContinue_Click", [&] {
    started = start.cmdContinue_Click();
    if (started) BeginRecovery();
  });
  return started;
}

void Program::BeginRecovery() {
  const QString folder = PathToQt(session_.folders.UserDataFolder);
  recovery_lock_ = std::make_unique<QLockFile>(folder + "/recovery.lock");
  if (!recovery_lock_->tryLock(0)) return;
  window_->KeepRecovery(recovery_);
  recovery_.Offer();
}

}  // namespace zeb
