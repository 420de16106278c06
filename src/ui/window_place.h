#pragma once

#include <QWidget>
#include <string>

#include "services/settings.h"

namespace zeb {

// Puts a window where the form of that name last was, at its last size, and in any case onto a
// screen. Without an earlier place it is centred on its parent or the screen.
void RestorePlace(Settings& settings, QWidget& window, const std::string& form);
void KeepPlace(Settings& settings, const QWidget& window, const std::string& form);

}  // namespace zeb
