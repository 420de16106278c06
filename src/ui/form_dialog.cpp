#include "ui/form_dialog.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "paint/code_page.h"
#include "ui/code_page_guard.h"
#include "ui/shown_text.h"

namespace zeb {
namespace {

// Lists are filled anew only when their entries change, so that an open one stays as it is.
void Fill(QComboBox& list, const std::vector<std::string>& entries) {
  QStringList texts;
  for (const std::string& entry : entries) texts.append(ToQt(entry));
  QStringList present;
  for (int row = 0; row < list.count(); ++row) present.append(list.itemText(row));
  if (texts == present) return;
  list.clear();
  list.addItems(texts);
}

}  // namespace

FormDialog::FormDialog(const Ui& ui, Form& form, QWidget* parent)
    : QDialog(parent), ui_(ui), form_(form) {
  setObjectName(ShownText(form.Name()));
}

void FormDialog::Refresh() {
  for (const auto& refresh : refreshers_) refresh();
}

void FormDialog::Finish() {
  finished_ = true;
  done(QDialog::Accepted);
}

void FormDialog::reject() {
  if (finished_ || !dismiss_) return;
  Run(dismiss_procedure_, dismiss_);
}

void FormDialog::Run(const std::string& procedure, const Event& event) {
  if (finished_) return;
  ui_.runner.RunEvent(std::string(form_.Name()), procedure, event);
  if (!finished_) Refresh();
}

void FormDialog::Bind(QLineEdit& field, std::string& text) {
  GuardText(field);
  connect(&field, &QLineEdit::textEdited, this,
          [&text](const QString& entered) { text = FromQt(entered); });
  OnRefresh([&] {
    if (FromQt(field.text()) != text) field.setText(ToQt(text));
  });
}

void FormDialog::MapTyped(QLineEdit& field, std::string& text,
                          const std::function<char(char)>& map) {
  connect(&field, &QLineEdit::textEdited, this, [&, map] {
    std::ranges::transform(text, text.begin(), map);
    if (FromQt(field.text()) == text) return;
    const int cursor = field.cursorPosition();
    field.setText(ToQt(text));
    field.setCursorPosition(cursor);
  });
}

void FormDialog::Bind(QPlainTextEdit& field, std::string& text) {
  GuardText(field);
  OnRefresh([&] {
    const QString shown = ShownText(text);
    if (field.toPlainText() != shown) field.setPlainText(shown);
  });
  connect(&field, &QPlainTextEdit::textChanged, this, [&] {
    const QString shown = field.toPlainText();
    if (shown != ShownText(text)) text = FromQt(QString(shown).replace("\n", "\r\n"));
  });
}

void FormDialog::Bind(QCheckBox& box, bool& checked) {
  connect(&box, &QCheckBox::clicked, this, [&checked](bool now) { checked = now; });
  OnRefresh([&] { box.setChecked(checked); });
}

void FormDialog::Bind(QRadioButton& button, const bool& checked) {
  OnRefresh([&] {
    if (checked) button.setChecked(true);
  });
}

void FormDialog::Bind(QComboBox& list, std::string& text, const Entries& entries) {
  if (list.isEditable()) {
    GuardText(*list.lineEdit());
    connect(&list, &QComboBox::editTextChanged, this,
            [&text](const QString& entered) { text = FromQt(entered); });
  } else {
    connect(&list, &QComboBox::activated, this, [&] { text = FromQt(list.currentText()); });
  }
  OnRefresh([&list, &text, entries] {
    // Filling the list changes its text for a moment, which is not an entry.
    const QSignalBlocker quiet(&list);
    Fill(list, entries());
    if (FromQt(list.currentText()) != text || (list.currentIndex() < 0) != text.empty())
      list.setCurrentIndex(list.findText(ToQt(text), Qt::MatchExactly | Qt::MatchCaseSensitive));
    if (list.isEditable()) list.setEditText(ToQt(text));
  });
}

void FormDialog::Show(QLabel& label, const std::string& text) {
  label.setTextFormat(Qt::PlainText);
  OnRefresh([&] { label.setText(ShownText(text)); });
}

void FormDialog::Enable(QWidget& widget, const bool& enabled) {
  OnRefresh([&] { widget.setEnabled(enabled); });
}

void FormDialog::OnRefresh(std::function<void()> refresh) {
  refreshers_.push_back(std::move(refresh));
}

void FormDialog::OnClick(QAbstractButton& button, const std::string& procedure,
                         const Event& event) {
  connect(&button, &QAbstractButton::clicked, this,
          [this, procedure, event] { Run(procedure, event); });
}

void FormDialog::OnPick(QComboBox& list, const std::string& procedure, const Event& event) {
  connect(&list, &QComboBox::activated, this, [this, procedure, event] { Run(procedure, event); });
}

void FormDialog::OnLeave(QWidget& field, const std::string& procedure, const Event& event) {
  field.installEventFilter(this);
  leave_events_.push_back({&field, procedure, event});
}

void FormDialog::OnDismiss(const std::string& procedure, const Event& event) {
  dismiss_procedure_ = procedure;
  dismiss_ = event;
}

bool FormDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::FocusOut) {
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    const bool stays_in_window =
        reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
    for (const LeaveEvent& leave : leave_events_)
      if (leave.field == watched && stays_in_window && isVisible())
        // The focus is on its way to the next control; a box would break into that.
        QMetaObject::invokeMethod(
            this, [this, leave] { Run(leave.procedure, leave.event); }, Qt::QueuedConnection);
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace zeb
