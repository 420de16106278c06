#include "ui/qt_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QInputDialog>
#include <QMainWindow>
#include <QMessageBox>
#include <array>

#include "model/real_arithmetic.h"
#include "paint/code_page.h"
#include "ui/code_page_guard.h"
#include "ui/shown_text.h"
#include "ui/window_place.h"

namespace zeb {
namespace {

struct ButtonAnswer {
  QMessageBox::StandardButton button;
  Answer answer;
};

// In the order in which a message's default button counts them.
constexpr std::array<ButtonAnswer, 7> kAnswers{{{QMessageBox::Ok, Answer::kOk},
                                                {QMessageBox::Yes, Answer::kYes},
                                                {QMessageBox::No, Answer::kNo},
                                                {QMessageBox::Abort, Answer::kAbort},
                                                {QMessageBox::Retry, Answer::kRetry},
                                                {QMessageBox::Ignore, Answer::kIgnore},
                                                {QMessageBox::Cancel, Answer::kCancel}}};

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::kOkCancel:
      return QMessageBox::Ok | QMessageBox::Cancel;
    case MessageButtons::kAbortRetryIgnore:
      return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    case MessageButtons::kYesNo:
      return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::kRetryCancel:
      return QMessageBox::Retry | QMessageBox::Cancel;
    case MessageButtons::kOk:
      break;
  }
  return QMessageBox::Ok;
}

// Esc and the frame's button mean the answer that changes least.
QMessageBox::StandardButton EscapeOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::kOkCancel:
    case MessageButtons::kRetryCancel:
      return QMessageBox::Cancel;
    case MessageButtons::kAbortRetryIgnore:
      return QMessageBox::Ignore;
    case MessageButtons::kYesNo:
      return QMessageBox::No;
    case MessageButtons::kOk:
      break;
  }
  return QMessageBox::Ok;
}

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kInformation:
      return QMessageBox::Information;
    case MessageIcon::kQuestion:
      return QMessageBox::Question;
    case MessageIcon::kWarning:
      return QMessageBox::Warning;
    case MessageIcon::kStop:
      return QMessageBox::Critical;
    case MessageIcon::kNone:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButton ButtonOf(Answer answer) {
  for (const ButtonAnswer& row : kAnswers)
    if (row.answer == answer) return row.button;
  return QMessageBox::NoButton;
}

Answer AnswerOf(int button) {
  for (const ButtonAnswer& row : kAnswers)
    if (row.button == button) return row.answer;
  return Answer::kCancel;
}

// A box is never left without a parent, as it would not stay above the window: while another
// program is in front, the main window is its parent.
QWidget* WindowInFront() {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr) return window;
  return nullptr;
}

// The box is made for its text, which may be shorter than the title.
void MakeRoomForTitle(QMessageBox& box) {
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid == nullptr) return;
  grid->addItem(new QSpacerItem(WidthForTitle(box), 0), grid->rowCount(), 0, 1,
                grid->columnCount());
}

// "ZEB Files|*.ZEB" as "ZEB Files (*.ZEB *.zeb)"; a bare extension is its own description.
QString NameFilter(const std::string& filter) {
  const QStringList parts = ToQt(filter).split('|');
  const QString pattern = parts.size() > 1 ? parts[1] : "*." + parts[0];
  return QStringLiteral("%1 (%2 %3)").arg(parts[0], pattern.toUpper(), pattern.toLower());
}

std::string PickFile(const FileDialog& request, QFileDialog::AcceptMode mode) {
  const KeepRealArithmeticFlags keep;
  QFileDialog dialog(WindowInFront(), ShownText(request.title), PathToQt(request.folder));
  dialog.setAcceptMode(mode);
  dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                     : QFileDialog::AnyFile);
  // Whether an existing file may go is asked by the command, in its own words.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  if (!request.filter.empty()) dialog.setNameFilters({NameFilter(request.filter), "All files (*)"});
  dialog.setDefaultSuffix(ToQt(request.default_extension));
  if (!request.file_name.empty()) dialog.selectFile(PathToQt(request.file_name));
  if (dialog.exec() != QDialog::Accepted) return "";
  return PathFromQt(QDir::toNativeSeparators(dialog.selectedFiles().value(0)));
}

}  // namespace

Answer QtDialogs::Show(const Message& message) {
  const KeepRealArithmeticFlags keep;
  QMessageBox box(WindowInFront());
  box.setWindowTitle(ShownText(message.title));
  box.setTextFormat(Qt::PlainText);
  box.setText(ShownText(message.text));
  box.setIcon(IconOf(message.icon));
  box.setStandardButtons(ButtonsOf(message.buttons));
  box.setDefaultButton(ButtonOf(DefaultAnswer(message)));
  box.setEscapeButton(EscapeOf(message.buttons));
  MakeRoomForTitle(box);
  return AnswerOf(box.exec());
}

std::optional<std::string> QtDialogs::Input(const std::string& title, const std::string& prompt,
                                            const std::string& initial) {
  const KeepRealArithmeticFlags keep;
  QInputDialog dialog(WindowInFront());
  dialog.setWindowTitle(ShownText(title));
  dialog.setLabelText(ShownText(prompt));
  dialog.setTextValue(ToQt(initial));
  if (auto* field = dialog.findChild<QLineEdit*>()) GuardText(*field);
  dialog.resize(dialog.sizeHint().expandedTo({WidthForTitle(dialog), 0}));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return FromQt(dialog.textValue());
}

std::string QtDialogs::OpenFile(const FileDialog& dialog) {
  return PickFile(dialog, QFileDialog::AcceptOpen);
}

std::string QtDialogs::SaveFile(const FileDialog& dialog) {
  return PickFile(dialog, QFileDialog::AcceptSave);
}

}  // namespace zeb
