#pragma once

#include <QImage>

#include "paint/painter_surface.h"

namespace zeb {

// A picture that keeps what is drawn on it.
class ImageSurface : public PainterSurface {
 public:
  ImageSurface() { Resize({}, 1.0); }
  ~ImageSurface() override { End(); }

  // A new, white image of the geometry's size, with `ratio` device dots to a unit of the window.
  void Resize(const PictureGeometry& geometry, qreal ratio);
  [[nodiscard]] const QImage& Image() const { return image_; }

 private:
  QImage image_;
};

}  // namespace zeb
