#include "paint/painter_surface.h"

#include <QPaintEngine>

#include "paint/code_page.h"

namespace zeb {
namespace {

// A line along an axis with its square ends. Filling it is much quicker than stroking it.
QRectF Bar(const QLineF& line, qreal width) {
  const qreal half = width / 2;
  return QRectF(line.p1(), line.p2()).normalized().adjusted(-half, -half, half, half);
}

}  // namespace

QColor ToQt(Colour colour) {
  const auto part = [&](int shift) { return static_cast<int>((colour.value >> shift) & 0xFFU); };
  return {part(0), part(8), part(16)};
}

void PainterSurface::Begin(QPaintDevice& device, const QRectF& area,
                           const PictureGeometry& geometry) {
  End();
  area_ = area;
  geometry_ = geometry;
  glyphs_.reset();
  circles_.Clear();
  painter_.begin(&device);
  painter_.setClipRect(area);
}

void PainterSurface::End() {
  if (painter_.isActive()) painter_.end();
}

void PainterSurface::Clear(Colour background) { painter_.fillRect(area_, ToQt(background)); }

void PainterSurface::Line(Point from, Point to, Pen pen) {
  const QLineF line(OnDevice(from), OnDevice(to));
  const bool along_axis = line.dx() == 0 || line.dy() == 0;
  // Smoothing would blur the lines along the axes, and most pipes run so.
  Use(pen, std::nullopt, !along_axis);
  if (along_axis && DrawsDots()) {
    painter_.fillRect(Bar(line, pen.width), ToQt(pen.colour));
  } else {
    painter_.drawLine(line);
  }
}

void PainterSurface::Box(Point corner, Point opposite, Pen pen, std::optional<Colour> fill) {
  Use(pen, fill, false);
  painter_.drawRect(OnDevice(corner, opposite));
}

void PainterSurface::Circle(Point centre, float radius, Pen pen, std::optional<Colour> fill) {
  constexpr qreal kLargestPicture = 64;
  const qreal dots = radius * area_.width() / kWidth;
  if (DrawsDots() && dots <= kLargestPicture) {
    circles_.Draw(painter_, OnDevice(centre), dots, pen, fill);
    return;
  }
  Use(pen, fill, true);
  painter_.drawEllipse(OnDevice(centre), dots, dots);
}

void PainterSurface::InvertBox(Point corner, Point opposite, Pen pen) {
  Use(pen, std::nullopt, false);
  painter_.setCompositionMode(QPainter::RasterOp_NotDestination);
  painter_.drawRect(OnDevice(corner, opposite));
  painter_.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void PainterSurface::SetTextStyle(const TextStyle& style) {
  if (style_ == style && glyphs_) return;
  style_ = style;
  QFont font(ToQt(style.font));
  font.setPointSizeF(style.size);
  font.setBold(style.bold);
  font.setItalic(style.italic);
  const QFont on_device(font, painter_.device());
  if (!glyphs_ || glyphs_->Font() != on_device) glyphs_.emplace(on_device);
}

void PainterSurface::Text(Point top_left, const std::string& text) {
  if (!glyphs_) SetTextStyle(style_.value_or(TextStyle{.font = "Arial", .colour = {}}));
  painter_.setPen(ToQt(style_->colour));
  glyphs_->Draw(painter_, OnDevice(top_left), text);
}

QPointF PainterSurface::OnDevice(Point point) const {
  return area_.topLeft() +
         QPointF(point.x * area_.width() / kWidth, point.y * area_.height() / kHeight);
}

QRectF PainterSurface::OnDevice(Point corner, Point opposite) const {
  return QRectF(OnDevice(corner), OnDevice(opposite)).normalized();
}

bool PainterSurface::DrawsDots() const {
  return painter_.paintEngine()->type() == QPaintEngine::Raster;
}

void PainterSurface::Use(Pen pen, std::optional<Colour> fill, bool smooth) {
  painter_.setRenderHint(QPainter::Antialiasing, smooth);
  painter_.setPen(QPen(ToQt(pen.colour), pen.width));
  painter_.setBrush(fill ? QBrush(ToQt(*fill)) : QBrush(Qt::NoBrush));
}

}  // namespace zeb
