#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace zeb {

// A colour as bytes blue, green, red from the highest down: 0xBBGGRR.
struct Colour {
  std::uint32_t value = 0;

  friend constexpr bool operator==(Colour, Colour) = default;
};

// The sixteen colours that drawings and forms name by number, 0 black to 15 bright white.
[[nodiscard]] constexpr Colour PaletteColour(int number) {
  constexpr std::array<std::uint32_t, 16> kPalette{
      0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
      0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF};
  return {kPalette.at(static_cast<std::size_t>(number))};
}

struct Point {
  float x = 0.0F;
  float y = 0.0F;

  friend constexpr bool operator==(const Point&, const Point&) = default;
};

struct Pen {
  Colour colour;
  int width = 1;  // device dots

  friend constexpr bool operator==(const Pen&, const Pen&) = default;
};

struct TextStyle {
  std::string font;
  float size = 8.0F;  // points
  bool bold = false;
  bool italic = false;
  Colour colour;

  friend bool operator==(const TextStyle&, const TextStyle&) = default;
};

// A place in the window, in its units.
struct PictureGeometry {
  float left = 0.0F;
  float top = 0.0F;
  float width = 0.0F;
  float height = 0.0F;
};

// A picture that keeps what is drawn on it. Whatever its real size, (0, 0) is its top left corner
// and (640, 480) its bottom right one, so x and y are stretched apart; what falls outside is cut.
class DrawingSurface {
 public:
  static constexpr float kWidth = 640.0F;
  static constexpr float kHeight = 480.0F;

  DrawingSurface() = default;
  DrawingSurface(const DrawingSurface&) = delete;
  DrawingSurface& operator=(const DrawingSurface&) = delete;
  virtual ~DrawingSurface() = default;

  virtual void Clear(Colour background) = 0;
  virtual void Line(Point from, Point to, Pen pen) = 0;
  // Without a fill only the outline is drawn.
  virtual void Box(Point corner, Point opposite, Pen pen, std::optional<Colour> fill) = 0;
  // Round on the real picture; the radius is in horizontal units.
  virtual void Circle(Point centre, float radius, Pen pen, std::optional<Colour> fill) = 0;
  // A box outline that undoes itself when it is drawn a second time.
  virtual void InvertBox(Point corner, Point opposite, Pen pen) = 0;
  // The style of all texts until the next call.
  virtual void SetTextStyle(const TextStyle& style) = 0;
  virtual void Text(Point top_left, const std::string& text) = 0;

  [[nodiscard]] virtual PictureGeometry Geometry() const = 0;
};

}  // namespace zeb
