#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <optional>

#include "paint/circle_table.h"
#include "paint/glyph_table.h"
#include "platform/drawing_surface.h"

namespace zeb {

[[nodiscard]] QColor ToQt(Colour colour);

// A picture on any paint device: an image, a page, a window. It is drawn from Begin to End.
class PainterSurface : public DrawingSurface {
 public:
  // `area` is the picture's place on the device, `geometry` its place in the window.
  void Begin(QPaintDevice& device, const QRectF& area, const PictureGeometry& geometry);
  void End();

  void Clear(Colour background) override;
  void Line(Point from, Point to, Pen pen) override;
  void Box(Point corner, Point opposite, Pen pen, std::optional<Colour> fill) override;
  void Circle(Point centre, float radius, Pen pen, std::optional<Colour> fill) override;
  // Undoes itself on images only.
  void InvertBox(Point corner, Point opposite, Pen pen) override;
  void SetTextStyle(const TextStyle& style) override;
  void Text(Point top_left, const std::string& text) override;
  [[nodiscard]] PictureGeometry Geometry() const override { return geometry_; }

 private:
  [[nodiscard]] QPointF OnDevice(Point point) const;
  [[nodiscard]] QRectF OnDevice(Point corner, Point opposite) const;
  [[nodiscard]] bool DrawsDots() const;
  void Use(Pen pen, std::optional<Colour> fill, bool smooth);

  QPainter painter_;
  QRectF area_;
  PictureGeometry geometry_;
  std::optional<TextStyle> style_;
  std::optional<GlyphTable> glyphs_;
  CircleTable circles_;
};

}  // namespace zeb
