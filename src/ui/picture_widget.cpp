#include "ui/picture_widget.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

#include "ui/icons.h"

namespace zeb {
namespace {

struct ArrowPlace {
  const char* tip;
  double across;  // 0 at the left edge of the picture, 1 at the right
  double down;
};

// Clockwise from north; each arrow is turned by 45 degrees more.
constexpr std::array<ArrowPlace, 8> kArrowPlaces{{{"north", 0.5, 0},
                                                  {"north east", 1, 0},
                                                  {"east", 1, 0.5},
                                                  {"south east", 1, 1},
                                                  {"south", 0.5, 1},
                                                  {"south west", 0, 1},
                                                  {"west", 0, 0.5},
                                                  {"north west", 0, 0}}};

}  // namespace

PictureWidget::PictureWidget(QWidget* parent) : QWidget(parent) {
  setObjectName("pic1");
  setAccessibleName(tr("Drawing of the network"));
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(320, 200);
  AddPanArrows();
}

void PictureWidget::AddPanArrows() {
  for (std::size_t index = 0; index < arrows_.size(); ++index) {
    auto* arrow = new QToolButton(this);
    arrow->setObjectName(QStringLiteral("pan%1").arg(index));
    arrow->setIcon(ProgramIcon("pan", 45.0 * static_cast<double>(index)));
    arrow->setToolTip(tr("Moves the view one box to the %1").arg(kArrowPlaces[index].tip));
    arrow->setCursor(Qt::ArrowCursor);
    arrow->setFocusPolicy(Qt::TabFocus);
    arrow->hide();
    connect(arrow, &QToolButton::clicked, this,
            [this, index] { emit PanPressed(static_cast<int>(index)); });
    arrows_[index] = arrow;
  }
}

void PictureWidget::PlacePanArrows() {
  constexpr int kMargin = 6;
  for (std::size_t index = 0; index < arrows_.size(); ++index) {
    const QSize size = arrows_[index]->sizeHint();
    const QSizeF room = this->size() - size - QSize(2 * kMargin, 2 * kMargin);
    const ArrowPlace& place = kArrowPlaces[index];
    arrows_[index]->setGeometry(QRect(kMargin + static_cast<int>(place.across * room.width()),
                                      kMargin + static_cast<int>(place.down * room.height()),
                                      size.width(), size.height()));
  }
}

void PictureWidget::ShowPanArrows(bool shown) {
  for (QToolButton* arrow : arrows_) arrow->setVisible(shown);
}

Point PictureWidget::ToPicture(QPointF place) const {
  return {static_cast<float>(place.x() * DrawingSurface::kWidth / width()),
          static_cast<float>(place.y() * DrawingSurface::kHeight / height())};
}

void PictureWidget::FitSurface() {
  surface_.Resize({.left = static_cast<float>(x()),
                   .top = static_cast<float>(y()),
                   .width = static_cast<float>(width()),
                   .height = static_cast<float>(height())},
                  devicePixelRatioF());
}

void PictureWidget::SetInvitation(const QString& text) {
  if (invitation_ == text) return;
  invitation_ = text;
  update();
}

void PictureWidget::paintEvent(QPaintEvent* /*event*/) {
  // The window may have come to a screen of another density.
  if (surface_.Image().devicePixelRatio() != devicePixelRatioF()) {
    FitSurface();
    QMetaObject::invokeMethod(this, &PictureWidget::NeedsRedraw, Qt::QueuedConnection);
  }
  QPainter painter(this);
  painter.drawImage(QPointF(0, 0), surface_.Image());
  if (invitation_.isEmpty()) return;
  painter.setPen(QColor(0x6B, 0x74, 0x82));
  painter.drawText(rect(), Qt::AlignCenter, invitation_);
}

void PictureWidget::resizeEvent(QResizeEvent* /*event*/) {
  FitSurface();
  PlacePanArrows();
  emit NeedsRedraw();
}

// The buttons on the side of a mouse mean nothing here.
bool PictureWidget::IsServed(QMouseEvent& event) {
  const bool served = (event.button() & (Qt::LeftButton | Qt::RightButton | Qt::MiddleButton)) != 0;
  event.setAccepted(served);
  return served;
}

void PictureWidget::mousePressEvent(QMouseEvent* event) {
  if (!IsServed(*event)) return;
  emit Pressed(event->button(), ToPicture(event->position()));
}

void PictureWidget::mouseMoveEvent(QMouseEvent* event) { emit Moved(ToPicture(event->position())); }

void PictureWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (!IsServed(*event)) return;
  emit Released(event->button(), ToPicture(event->position()));
}

void PictureWidget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (IsServed(*event)) emit DoubleClicked(event->button());
}

void PictureWidget::wheelEvent(QWheelEvent* event) {
  constexpr int kNotch = 120;  // in eighths of a degree; touch pads turn by less at a time
  wheel_rest_ += event->angleDelta().y();
  const int notches = wheel_rest_ / kNotch;
  wheel_rest_ -= notches * kNotch;
  if (notches != 0) emit Wheeled(ToPicture(event->position()), notches);
}

void PictureWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    emit Escaped();
    return;
  }
  QWidget::keyPressEvent(event);
}

void PictureWidget::contextMenuEvent(QContextMenuEvent* event) {
  // The right button's press shows the menu; this is the menu key.
  if (event->reason() == QContextMenuEvent::Keyboard) emit MenuAsked();
}

}  // namespace zeb
