#include "ui/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <array>

namespace zeb {
namespace {

struct ThemeColour {
  QPalette::ColorRole role;
  const char* light;
  const char* dark;
};

constexpr std::array<ThemeColour, 18> kColours{{{QPalette::Window, "#f3f4f6", "#26282c"},
                                                {QPalette::WindowText, "#23272f", "#dfe2e7"},
                                                {QPalette::Base, "#ffffff", "#1d1f22"},
                                                {QPalette::AlternateBase, "#f6f8fa", "#232529"},
                                                {QPalette::Text, "#23272f", "#dfe2e7"},
                                                {QPalette::PlaceholderText, "#8b929e", "#7f8691"},
                                                {QPalette::Button, "#f3f4f6", "#303338"},
                                                {QPalette::ButtonText, "#343b47", "#d3d7de"},
                                                {QPalette::ToolTipBase, "#23272f", "#3a3e45"},
                                                {QPalette::ToolTipText, "#f3f4f6", "#f0f2f5"},
                                                {QPalette::Highlight, "#2f6fc0", "#3d7fd0"},
                                                {QPalette::HighlightedText, "#ffffff", "#ffffff"},
                                                {QPalette::Link, "#2f6fc0", "#6fa8ec"},
                                                {QPalette::BrightText, "#b3261e", "#ff8a80"},
                                                {QPalette::Light, "#ffffff", "#3d4147"},
                                                {QPalette::Midlight, "#e6e9ed", "#34373c"},
                                                {QPalette::Mid, "#c6ccd4", "#44484f"},
                                                {QPalette::Dark, "#aab2bd", "#17181a"}}};

constexpr char kDisabledLight[] = "#9aa1ac";
constexpr char kDisabledDark[] = "#757b85";

// What the desktop had before the program changed anything.
bool DesktopIsDark() {
  static const bool dark = QApplication::palette().color(QPalette::Window).lightness() < 128;
  return dark;
}

QPalette ThemePalette(bool dark) {
  QPalette palette;
  for (const ThemeColour& row : kColours) palette.setColor(row.role, dark ? row.dark : row.light);
  const QColor disabled(dark ? kDisabledDark : kDisabledLight);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, disabled);
  return palette;
}

}  // namespace

void ApplyTheme(const QString& theme) {
  const bool desktop_is_dark = DesktopIsDark();
  const bool dark = theme == kThemeDark || (theme != kThemeLight && desktop_is_dark);
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QApplication::setPalette(ThemePalette(dark));
}

}  // namespace zeb
