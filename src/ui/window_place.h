#pragma once

#include <QWidget>
#include <string>

#include "services/settings.h"

namespace zeb {

// Where a window without an earlier place goes: over the middle of its parent, or to a side of it,
// where it hides less of the drawing.
enum class FirstPlace { kCentre, kLeft, kRight };

// Puts a window where the form of that name last was, at its last size, and in any case onto a
// screen.
void RestorePlace(Settings& settings, QWidget& window, const std::string& form,
                  FirstPlace first = FirstPlace::kCentre);
// The width in dots at which a frame shows the window's title whole.
[[nodiscard]] int WidthForTitle(const QWidget& window);
void KeepPlace(Settings& settings, const QWidget& window, const std::string& form);

}  // namespace zeb
