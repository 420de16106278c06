#pragma once

#include <QWidget>
#include <array>

#include "paint/image_surface.h"

class QToolButton;

namespace zeb {

// The picture of the network, with the eight arrows on its edges that move a zoomed plan. What is
// drawn on its surface stays until the next redraw; after a change of size it asks for one. Places
// are in the picture's units.
class PictureWidget final : public QWidget {
  Q_OBJECT

 public:
  explicit PictureWidget(QWidget* parent = nullptr);

  [[nodiscard]] ImageSurface& Surface() { return surface_; }
  void ShowPanArrows(bool shown);
  // What stands in the middle of an empty picture.
  void SetInvitation(const QString& text);

 signals:
  void NeedsRedraw();
  void Pressed(Qt::MouseButton button, zeb::Point place);
  void Moved(zeb::Point place);
  void Released(Qt::MouseButton button, zeb::Point place);
  void DoubleClicked(Qt::MouseButton button);
  void Wheeled(zeb::Point place, int notches);
  void MenuAsked();
  void Escaped();
  void PanPressed(int index);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  [[nodiscard]] Point ToPicture(QPointF place) const;
  [[nodiscard]] static bool IsServed(QMouseEvent& event);
  void AddPanArrows();
  void PlacePanArrows();
  void FitSurface();

  ImageSurface surface_;
  std::array<QToolButton*, 8> arrows_{};
  QString invitation_;
  int wheel_rest_ = 0;  // turned so far towards the next notch
};

}  // namespace zeb
