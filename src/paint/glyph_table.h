#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>
#include <array>
#include <string_view>

namespace zeb {

// The glyphs of one font for each byte of the code page. A drawing has thousands of short texts,
// and looking their glyphs up is much quicker than laying each of them out.
class GlyphTable {
 public:
  explicit GlyphTable(const QFont& font);

  [[nodiscard]] const QFont& Font() const { return font_; }
  void Draw(QPainter& painter, QPointF top_left, std::string_view text);

 private:
  static constexpr int kBytes = 256;

  QFont font_;
  QRawFont raw_;
  QGlyphRun run_;
  QList<quint32> glyphs_;
  QList<QPointF> advances_;
};

}  // namespace zeb
