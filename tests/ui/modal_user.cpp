#include "modal_user.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QPushButton>

namespace zeb::test {
namespace {

constexpr int kPatience = 30000;  // ms

QString NameOf(const QDialog& dialog) {
  return qobject_cast<const QMessageBox*>(&dialog) != nullptr ? dialog.windowTitle()
                                                              : dialog.objectName();
}

QAbstractButton* ButtonOf(QDialog& dialog, const QString& button) {
  if (auto* named = dialog.findChild<QAbstractButton*>(button)) return named;
  for (QAbstractButton* candidate : dialog.findChildren<QAbstractButton*>())
    if (candidate->text().remove('&') == button) return candidate;
  return nullptr;
}

}  // namespace

ModalUser::ModalUser() {
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Look(); });
  timer_.start(1);
}

void ModalUser::Press(const QString& name, const QString& button) {
  On(name, [button](QDialog& dialog) {
    QAbstractButton* found = ButtonOf(dialog, button);
    ASSERT_NE(found, nullptr) << qPrintable(button);
    EXPECT_TRUE(found->isEnabled()) << qPrintable(button);
    found->click();
  });
}

void ModalUser::Look() {
  answered_.removeIf([](const QPointer<QDialog>& known) { return !known || !known->isVisible(); });
  auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
  if (dialog == nullptr || !dialog->isVisible() || answered_.contains(dialog)) return;
  answered_.append(dialog);
  QTimer::singleShot(kPatience, dialog, [dialog] {
    ADD_FAILURE() << qPrintable(NameOf(*dialog)) << " stays open";
    dialog->done(QDialog::Rejected);
  });
  // A timer rests while its slot runs, and the answer may bring up the next window.
  QMetaObject::invokeMethod(
      dialog, [this, dialog] { Answer(*dialog); }, Qt::QueuedConnection);
}

void ModalUser::Answer(QDialog& dialog) {
  const QString name = NameOf(dialog);
  shown.append(name);
  auto* box = qobject_cast<QMessageBox*>(&dialog);
  if (box != nullptr) texts.append(box->text());
  const auto hook = hooks_.find(name);
  if (hook != hooks_.end()) {
    hook->second(dialog);
  } else if (box != nullptr) {
    box->defaultButton()->click();
  } else {
    ADD_FAILURE() << "nobody answers " << qPrintable(name);
    dialog.reject();
  }
}

}  // namespace zeb::test
