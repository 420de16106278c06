#pragma once

#include <QDialogButtonBox>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>

namespace zeb {

// A font in which columns of text stand under one another.
[[nodiscard]] QFont FixedPitchFont();

// A button of a dialog's button row under its object name.
QPushButton& AddButton(QDialogButtonBox& row, const char* name, const QString& text,
                       QDialogButtonBox::ButtonRole role, const QString& tip = {});

// A field under its object name, wide enough for so many digits.
QLineEdit* NewField(const char* name, int digits, const QString& tip = {});

// A label whose text can be selected.
QLabel* NewTextLabel(const char* name);

}  // namespace zeb
