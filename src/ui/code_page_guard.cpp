#include "ui/code_page_guard.h"

#include <QTextDocument>
#include <QToolTip>
#include <QValidator>
#include <algorithm>

#include "paint/code_page.h"

namespace zeb {
namespace {

// Shows which character of the text was refused, at the field.
void TellRefusal(QWidget& field, const QString& text) {
  const auto* refused = std::ranges::find_if(text, [](QChar c) { return !IsInCodePage(c); });
  if (refused == text.end()) return;
  QString shown(*refused);
  if (refused->isHighSurrogate() && refused + 1 != text.end()) shown += refused[1];
  const QString message =
      QStringLiteral("The character \"%1\" cannot be stored in a project file.");
  QToolTip::showText(field.mapToGlobal(QPoint(0, field.height())), message.arg(shown), &field);
}

class CodePageValidator final : public QValidator {
 public:
  explicit CodePageValidator(QLineEdit& field) : QValidator(&field), field_(field) {}

  State validate(QString& text, int& /*position*/) const override {
    if (IsInCodePage(text)) return Acceptable;
    TellRefusal(field_, text);
    return Invalid;
  }

 private:
  QLineEdit& field_;
};

}  // namespace

void GuardText(QLineEdit& field) { field.setValidator(new CodePageValidator(field)); }

void GuardText(QPlainTextEdit& field) {
  QObject::connect(field.document(), &QTextDocument::contentsChange, &field,
                   [&field](int position, int /*removed*/, int added) {
                     const QString text = field.toPlainText().mid(position, added);
                     if (IsInCodePage(text)) return;
                     TellRefusal(field, text);
                     // The document is in the middle of this change now.
                     QMetaObject::invokeMethod(
                         &field, [&field] { field.undo(); }, Qt::QueuedConnection);
                   });
}

}  // namespace zeb
