#include "ui/dialog_parts.h"

#include <QFontDatabase>

namespace zeb {

QFont FixedPitchFont() { return QFontDatabase::systemFont(QFontDatabase::FixedFont); }

QPushButton& AddButton(QDialogButtonBox& row, const char* name, const QString& text,
                       QDialogButtonBox::ButtonRole role, const QString& tip) {
  QPushButton* button = row.addButton(text, role);
  button->setObjectName(name);
  button->setToolTip(tip);
  button->setDefault(role == QDialogButtonBox::AcceptRole);
  button->setAutoDefault(role == QDialogButtonBox::AcceptRole);
  return *button;
}

QLineEdit* NewField(const char* name, int digits, const QString& tip) {
  auto* field = new QLineEdit;
  field->setObjectName(name);
  field->setToolTip(tip);
  field->setMinimumWidth(field->fontMetrics().horizontalAdvance('0') * (digits + 2));
  return field;
}

QLabel* NewTextLabel(const char* name) {
  auto* label = new QLabel;
  label->setObjectName(name);
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return label;
}

}  // namespace zeb
