#include "paint/image_surface.h"

#include <algorithm>

namespace zeb {

void ImageSurface::Resize(const PictureGeometry& geometry, qreal ratio) {
  End();
  const QSizeF size(std::max(1.0F, geometry.width), std::max(1.0F, geometry.height));
  image_ = QImage((size * ratio).toSize().expandedTo({1, 1}), QImage::Format_RGB32);
  image_.setDevicePixelRatio(ratio);
  image_.fill(Qt::white);
  Begin(image_, QRectF(QPointF(0, 0), size), geometry);
}

}  // namespace zeb
