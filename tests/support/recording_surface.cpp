#include "support/recording_surface.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace zeb::test {
namespace {

std::string Tenths(float value) {
  const double rounded = std::round(value * 10.0) / 10.0 + 0.0;
  std::array<char, 64> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.1f", rounded);
  return buffer.data();
}

std::string At(Point point) { return " " + Tenths(point.x) + "," + Tenths(point.y); }

std::string Named(Colour colour) {
  for (int number = 0; number < 16; ++number) {
    if (colour == PaletteColour(number)) return std::to_string(number);
  }
  return "#" + std::to_string(colour.value);
}

std::string With(Pen pen) { return " c" + Named(pen.colour) + " w" + std::to_string(pen.width); }

std::string With(std::optional<Colour> fill) { return fill ? " f" + Named(*fill) : ""; }

}  // namespace

void RecordingSurface::Clear(Colour colour) {
  calls.clear();
  background = colour;
}

void RecordingSurface::Line(Point from, Point to, Pen pen) {
  calls.push_back("line" + At(from) + At(to) + With(pen));
}

void RecordingSurface::Box(Point corner, Point opposite, Pen pen, std::optional<Colour> fill) {
  calls.push_back("box" + At(corner) + At(opposite) + With(pen) + With(fill));
}

void RecordingSurface::Circle(Point centre, float radius, Pen pen, std::optional<Colour> fill) {
  calls.push_back("circle" + At(centre) + " r" + Tenths(radius) + With(pen) + With(fill));
}

void RecordingSurface::InvertBox(Point corner, Point opposite, Pen pen) {
  calls.push_back("invert" + At(corner) + At(opposite) + With(pen));
}

void RecordingSurface::Text(Point top_left, const std::string& text) {
  calls.push_back("text" + At(top_left) + " " + text);
}

std::vector<std::string> RecordingSurface::Calls(const std::string& kind) const {
  std::vector<std::string> found;
  for (const std::string& call : calls) {
    if (call.starts_with(kind + " ")) found.push_back(call);
  }
  return found;
}

int RecordingSurface::Count(const std::string& call) const {
  return static_cast<int>(std::count(calls.begin(), calls.end(), call));
}

}  // namespace zeb::test
