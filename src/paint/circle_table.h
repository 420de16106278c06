#pragma once

#include <QImage>
#include <QPainter>
#include <optional>
#include <vector>

#include "platform/drawing_surface.h"

namespace zeb {

// Circles as small pictures for a raster device. A drawing has thousands of few kinds of them, and
// each is smoothed once only.
class CircleTable {
 public:
  // `radius` and the pen's width are in units of the painter. The circle is moved by less than a
  // dot.
  void Draw(QPainter& painter, QPointF centre, qreal radius, Pen pen, std::optional<Colour> fill);
  void Clear() { kinds_.clear(); }

 private:
  struct Kind {
    qreal radius;
    Pen pen;
    std::optional<Colour> fill;
    QImage picture;
  };
  static constexpr std::size_t kMostKinds = 16;

  const QImage& PictureOf(qreal radius, Pen pen, std::optional<Colour> fill, qreal ratio);

  std::vector<Kind> kinds_;
};

}  // namespace zeb
