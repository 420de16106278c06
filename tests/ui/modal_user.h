#pragma once

#include <QDialog>
#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <map>

namespace zeb::test {

// Stands for the user of the modal windows that commands bring up. Each window that appears is
// noted and given to the hook of its name; a message box without one takes its default button.
class ModalUser {
 public:
  using Hook = std::function<void(QDialog&)>;

  ModalUser();

  // `name` is the object name of a form's window, or the title of a message box.
  void On(const QString& name, const Hook& hook) { hooks_[name] = hook; }
  // Presses a button of a form's window, or the button of that text of a message box.
  void Press(const QString& name, const QString& button);

  // The names of the windows and the titles of the boxes that appeared, in order, and the boxes'
  // texts.
  QStringList shown;
  QStringList texts;

 private:
  void Look();
  void Answer(QDialog& dialog);

  QTimer timer_;
  std::map<QString, Hook> hooks_;
  QList<QPointer<QDialog>> answered_;  // and still there
};

}  // namespace zeb::test
