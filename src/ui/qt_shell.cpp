#include "ui/qt_shell.h"

#include <QApplication>
#include <QMenu>
#include <algorithm>

#include "model/real_arithmetic.h"
#include "ui/form_registry.h"
#include "ui/main_window.h"
#include "ui/shown_text.h"
#include "ui/window_place.h"

namespace zeb {

QtShell::QtShell() = default;
QtShell::~QtShell() = default;

void QtShell::Attach(MainWindow* window) {
  window_ = window;
  shown_.clear();
  beside_.clear();
}

void QtShell::OnWindow(const std::function<void(MainWindow&)>& action) {
  const KeepRealArithmeticFlags keep;
  if (window_ != nullptr) action(*window_);
}

void QtShell::SetPanel(Panel panel, const std::string& text) {
  OnWindow([&](MainWindow& window) { window.Panels().SetText(panel, text); });
}

void QtShell::SetPanelTip(Panel panel, const std::string& text) {
  OnWindow([&](MainWindow& window) { window.Panels().SetTip(panel, text); });
}

void QtShell::SetPanelPicture(Panel panel, std::string_view picture) {
  OnWindow([&](MainWindow& window) { window.Panels().SetPicture(panel, picture); });
}

void QtShell::SetTitle(const std::string& title) {
  OnWindow([&](MainWindow& window) { window.setWindowTitle(ShownText(title)); });
}

void QtShell::SetBusyPointer(bool busy) {
  OnWindow([&](MainWindow& window) { window.SetBusyPointer(busy); });
}

void QtShell::SetPicturePointer(PicturePointer shape) {
  OnWindow([&](MainWindow& window) { window.SetPicturePointer(shape); });
}

void QtShell::Enable(Feature feature, bool enabled) {
  OnWindow([&](MainWindow& window) { window.Switches().Enable(feature, enabled); });
}

void QtShell::ClearPicture() {
  OnWindow([&](MainWindow& window) { window.ClearPicture(); });
}

void QtShell::Redraw() {
  OnWindow([&](MainWindow& window) { window.Redraw(); });
}

void QtShell::ShowPanArrows(bool shown) {
  OnWindow([&](MainWindow& window) { window.Picture().ShowPanArrows(shown); });
}

int QtShell::ShowPopup(const std::vector<std::string>& entries, int ticked) {
  const KeepRealArithmeticFlags keep;
  QMenu menu(window_);
  for (const std::string& entry : entries) menu.addAction(ShownText(entry))->setCheckable(true);
  const QList<QAction*> actions = menu.actions();
  if (ticked >= 0 && ticked < actions.size()) actions[ticked]->setChecked(true);
  return static_cast<int>(actions.indexOf(menu.exec(QCursor::pos())));
}

void QtShell::Beep() { QApplication::beep(); }

void QtShell::Yield() {
  const KeepRealArithmeticFlags keep;
  // With a window beside the command its user can stop the command, and no other window answers.
  // Else only painting and the like goes on.
  const bool can_answer = std::ranges::any_of(
      shown_, [](const FormDialog* dialog) { return dialog->isModal() && dialog->isVisible(); });
  QCoreApplication::processEvents(can_answer ? QEventLoop::AllEvents
                                             : QEventLoop::ExcludeUserInputEvents);
}

void QtShell::AddRecentFile(const std::string& path) {
  OnWindow([&](MainWindow& window) { window.AddRecentFile(path); });
}

void QtShell::ShowModal(Form& form) {
  const KeepRealArithmeticFlags keep;
  const std::unique_ptr<FormDialog> dialog = Make(form);
  if (!dialog) return;
  Session& session = window_->TheUi().session;
  const std::string name(form.Name());
  RestorePlace(session.settings, *dialog, name);
  dialog->exec();
  KeepPlace(session.settings, *dialog, name);
  Forget(dialog.get());
}

void QtShell::Open(Form& form) {
  const KeepRealArithmeticFlags keep;
  std::unique_ptr<FormDialog> dialog = Make(form);
  if (!dialog) return;
  const FirstPlace side = beside_.empty() ? FirstPlace::kRight : FirstPlace::kLeft;
  RestorePlace(window_->TheUi().session.settings, *dialog, std::string(form.Name()),
               dialog->isModal() ? FirstPlace::kCentre : side);
  dialog->show();
  beside_.push_back(std::move(dialog));
}

void QtShell::Close(Form& form) {
  const KeepRealArithmeticFlags keep;
  FormDialog* dialog = WindowOf(form);
  if (dialog == nullptr) return;
  dialog->Finish();
  const auto beside = std::ranges::find(beside_, dialog, &std::unique_ptr<FormDialog>::get);
  if (beside == beside_.end()) return;
  KeepPlace(window_->TheUi().session.settings, *dialog, std::string(form.Name()));
  Forget(dialog);
  // One of its own events may be running.
  beside->release()->deleteLater();
  beside_.erase(beside);
}

void QtShell::CloseNamed(std::string_view name) {
  const KeepRealArithmeticFlags keep;
  const auto found = std::ranges::find_if(
      shown_, [&](const FormDialog* dialog) { return dialog->ShownForm().Name() == name; });
  if (found != shown_.end()) (*found)->reject();
}

void QtShell::Refresh(Form& form) {
  const KeepRealArithmeticFlags keep;
  if (FormDialog* dialog = WindowOf(form)) dialog->Refresh();
}

std::unique_ptr<FormDialog> QtShell::Make(Form& form) {
  if (window_ == nullptr) return nullptr;
  QWidget* front = QApplication::activeModalWidget();
  auto dialog = ProgramForms().Make(window_->TheUi(), form, front != nullptr ? front : window_);
  if (!dialog) return nullptr;
  dialog->Refresh();
  if (!dialog->testAttribute(Qt::WA_Resized)) dialog->adjustSize();
  shown_.push_back(dialog.get());
  return dialog;
}

FormDialog* QtShell::WindowOf(const Form& form) const {
  const auto found = std::ranges::find_if(
      shown_, [&](const FormDialog* dialog) { return &dialog->ShownForm() == &form; });
  return found == shown_.end() ? nullptr : *found;
}

void QtShell::Forget(FormDialog* dialog) { std::erase(shown_, dialog); }

}  // namespace zeb
