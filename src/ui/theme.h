#pragma once

#include <QString>

namespace zeb {

// The names of the looks that a user can choose.
inline constexpr char kThemeSystem[] = "System";
inline constexpr char kThemeLight[] = "Light";
inline constexpr char kThemeDark[] = "Dark";

// Gives the application its style and palette. "System" follows the desktop.
void ApplyTheme(const QString& theme);

}  // namespace zeb
