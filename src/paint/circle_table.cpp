#include "paint/circle_table.h"

#include <algorithm>
#include <cmath>

#include "paint/painter_surface.h"

namespace zeb {
namespace {

// Dots from the middle dot of a circle's picture to its edges.
int Reach(qreal radius, Pen pen, qreal ratio) {
  return static_cast<int>(std::ceil((radius + pen.width) * ratio)) + 1;
}

QImage Picture(qreal radius, Pen pen, std::optional<Colour> fill, qreal ratio) {
  const int reach = Reach(radius, pen, ratio);
  const int size = 2 * reach + 1;
  QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(ToQt(pen.colour), pen.width));
  painter.setBrush(fill ? QBrush(ToQt(*fill)) : QBrush(Qt::NoBrush));
  const qreal middle = (reach + 0.5) / ratio;
  painter.drawEllipse(QPointF(middle, middle), radius, radius);
  return picture;
}

}  // namespace

void CircleTable::Draw(QPainter& painter, QPointF centre, qreal radius, Pen pen,
                       std::optional<Colour> fill) {
  const qreal ratio = painter.device()->devicePixelRatioF();
  const int reach = Reach(radius, pen, ratio);
  const auto corner = [&](qreal place) { return (std::floor(place * ratio) - reach) / ratio; };
  painter.drawImage(QPointF(corner(centre.x()), corner(centre.y())),
                    PictureOf(radius, pen, fill, ratio));
}

const QImage& CircleTable::PictureOf(qreal radius, Pen pen, std::optional<Colour> fill,
                                     qreal ratio) {
  const auto known = std::ranges::find_if(kinds_, [&](const Kind& kind) {
    return kind.radius == radius && kind.pen == pen && kind.fill == fill;
  });
  if (known != kinds_.end()) return known->picture;
  if (kinds_.size() >= kMostKinds) kinds_.clear();
  return kinds_.emplace_back(Kind{radius, pen, fill, Picture(radius, pen, fill, ratio)}).picture;
}

}  // namespace zeb
