#include "paint/glyph_table.h"

#include <algorithm>

#include "paint/code_page.h"

namespace zeb {
namespace {

std::string AllBytes(int count) {
  std::string bytes;
  for (int byte = 0; byte < count; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

}  // namespace

GlyphTable::GlyphTable(const QFont& font)
    : font_(font),
      raw_(QRawFont::fromFont(font)),
      glyphs_(raw_.glyphIndexesForString(ToQt(AllBytes(kBytes)))),
      advances_(raw_.advancesForGlyphIndexes(glyphs_)) {
  run_.setRawFont(raw_);
}

void GlyphTable::Draw(QPainter& painter, QPointF top_left, std::string_view text) {
  const QPointF base = top_left + QPointF(0, raw_.ascent());
  const auto is_missing = [&](char byte) { return glyphs_[static_cast<unsigned char>(byte)] == 0; };
  if (glyphs_.size() != kBytes || std::ranges::any_of(text, is_missing)) {
    painter.setFont(font_);
    painter.drawText(base, ToQt(text));
    return;
  }
  QList<quint32> indexes;
  QList<QPointF> positions;
  qreal x = 0;
  for (const char byte : text) {
    const auto slot = static_cast<unsigned char>(byte);
    indexes.append(glyphs_[slot]);
    positions.append({x, 0});
    x += advances_[slot].x();
  }
  run_.setGlyphIndexes(indexes);
  run_.setPositions(positions);
  painter.drawGlyphRun(base, run_);
}

}  // namespace zeb
