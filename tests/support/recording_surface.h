#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/drawing_surface.h"

namespace zeb::test {

// Keeps what was drawn since the last clear as lines of text: coordinates rounded to a tenth, then
// the colour by its palette number (or "#" and its value), the pen's width and the fill.
//
//   "line 0.0,480.0 320.0,480.0 c9 w2"
//   "box 4.0,4.0 16.0,16.0 c0 w1 f15"
//   "circle 10.0,20.0 r4.0 c9 w1"
//   "text 14.0,18.0 N20"
class RecordingSurface final : public DrawingSurface {
 public:
  void Clear(Colour background) override;
  void Line(Point from, Point to, Pen pen) override;
  void Box(Point corner, Point opposite, Pen pen, std::optional<Colour> fill) override;
  void Circle(Point centre, float radius, Pen pen, std::optional<Colour> fill) override;
  void InvertBox(Point corner, Point opposite, Pen pen) override;
  void SetTextStyle(const TextStyle& style) override { text_style = style; }
  void Text(Point top_left, const std::string& text) override;
  [[nodiscard]] PictureGeometry Geometry() const override { return geometry; }

  // The calls of one kind, such as "circle".
  [[nodiscard]] std::vector<std::string> Calls(const std::string& kind) const;
  // How often a call was made.
  [[nodiscard]] int Count(const std::string& call) const;

  std::vector<std::string> calls;
  TextStyle text_style;
  Colour background;
  PictureGeometry geometry;
};

}  // namespace zeb::test
