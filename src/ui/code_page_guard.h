#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

namespace zeb {

// Fields that take only characters which a project file can hold. Another one is refused and a tip
// beside the field says so.
void GuardText(QLineEdit& field);
void GuardText(QPlainTextEdit& field);

}  // namespace zeb
