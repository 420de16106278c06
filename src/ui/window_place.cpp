#include "ui/window_place.h"

#include <QFontDatabase>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QStyle>
#include <algorithm>

#include "services/form_position.h"

namespace zeb {
namespace {

// Whether the window filled the screen.
constexpr char kMaximized[] = "Maximized";
constexpr int kMargin = 40;  // dots

const std::string kSection(setting::kFormPositionSection);

bool WasMaximized(Settings& settings, const std::string& form) {
  return settings.GetSetting(kSection, form + kMaximized, "0") == "1";
}

// The screen that shows most of the rectangle.
const QScreen* ScreenOf(const QRect& place) {
  const QScreen* best = QGuiApplication::primaryScreen();
  int most = 0;
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect seen = screen->availableGeometry() & place;
    const int area = seen.isEmpty() ? 0 : seen.width() * seen.height();
    if (area > most) {
      most = area;
      best = screen;
    }
  }
  return best;
}

// How far a frame reaches beyond its window. A window that was never shown does not know yet, so
// its parent's frame stands for it.
QMargins FrameOf(const QWidget& window) {
  const QWidget* parent = window.parentWidget();
  const QWidget& shown = parent != nullptr ? *parent->window() : window;
  const QRect inner = shown.geometry();
  const QRect outer = shown.frameGeometry();
  if (outer != inner) {
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
  }
  const QStyle& style = *window.style();
  const int edge = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
  return {edge, style.pixelMetric(QStyle::PM_TitleBarHeight), edge, edge};
}

// The rectangle made no larger than the screen and moved onto it.
QRect OnScreen(QRect place) {
  const QRect screen = ScreenOf(place)->availableGeometry();
  place.setSize(place.size().boundedTo(screen.size()));
  place.moveRight(std::min(place.right(), screen.right()));
  place.moveBottom(std::min(place.bottom(), screen.bottom()));
  place.moveLeft(std::max(place.left(), screen.left()));
  place.moveTop(std::max(place.top(), screen.top()));
  return place;
}

// What a window without an earlier place is centred on.
QPoint Centre(const QWidget& window) {
  const QWidget* parent = window.parentWidget();
  if (parent != nullptr && parent->isVisible()) return parent->window()->frameGeometry().center();
  return QGuiApplication::primaryScreen()->availableGeometry().center();
}

// Wrapped texts need more height than the layout's own hint tells.
QSize WithRoomForTexts(QSize size, const QWidget& window) {
  const QLayout* layout = window.layout();
  if (layout == nullptr || !layout->hasHeightForWidth()) return size;
  return size.expandedTo({0, layout->totalHeightForWidth(size.width())});
}

void MoveAside(QRect& place, const QWidget& window, FirstPlace side) {
  if (window.parentWidget() == nullptr) return;
  const QRect parent = window.parentWidget()->window()->frameGeometry();
  if (side == FirstPlace::kLeft) place.moveLeft(parent.left() + kMargin);
  if (side == FirstPlace::kRight) place.moveRight(parent.right() - kMargin);
}

}  // namespace

void RestorePlace(Settings& settings, QWidget& window, const std::string& form, FirstPlace first) {
  const FormPosition stored = LoadFormPos(settings, form);
  QSize size = window.size();
  if (stored.width && stored.height)
    size = QSize(*stored.width, *stored.height).expandedTo(window.minimumSizeHint());
  size.setWidth(std::max(size.width(), WidthForTitle(window)));
  const QMargins frame = FrameOf(window);
  QRect place(QPoint(0, 0), WithRoomForTexts(size, window).grownBy(frame));
  place.moveCenter(Centre(window));
  MoveAside(place, window, first);
  if (stored.left && stored.top) place.moveTopLeft({*stored.left, *stored.top});
  place = OnScreen(place);
  window.resize(place.size().shrunkBy(frame));
  window.move(place.topLeft());
  if (WasMaximized(settings, form)) window.setWindowState(Qt::WindowMaximized);
}

int WidthForTitle(const QWidget& window) {
  constexpr int kFrameButtons = 5;  // as many times the title's height, its icon among them
  const QFontMetrics metrics(QFontDatabase::systemFont(QFontDatabase::TitleFont));
  const int buttons = kFrameButtons * window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
  return metrics.horizontalAdvance(window.windowTitle()) + buttons;
}

void KeepPlace(Settings& settings, const QWidget& window, const std::string& form) {
  if (window.isMinimized()) return;
  if (window.isMaximized() != WasMaximized(settings, form))
    settings.SaveSetting(kSection, form + kMaximized, window.isMaximized() ? "1" : "0");
  if (window.isMaximized()) return;
  const FormPosition place{
      .top = window.y(), .left = window.x(), .width = window.width(), .height = window.height()};
  if (LoadFormPos(settings, form) != place) SaveFormPos(settings, form, place);
}

}  // namespace zeb
