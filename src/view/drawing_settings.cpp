#include "view/drawing_settings.h"

#include <algorithm>

#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr float kDefaultFontSize = 8.0F;

Colour BackgroundColour(const std::string& name) {
  if (name == "Light-Gray") return {14671839};
  if (name == "Gray") return {13619151};
  return PaletteColour(15);
}

// The setting is a colour value, no palette number.
Colour RawColour(const std::string& text) {
  return {static_cast<std::uint32_t>(std::clamp(Val(text), 0.0, double{0xFFFFFF}))};
}

bool IsTrue(const std::string& text) { return UpperCase(Trim(text)) == "TRUE" || Val(text) != 0; }

}  // namespace

DrawingSettings ReadDrawingSettings(Settings& settings) {
  const auto font_size = static_cast<float>(Val(settings.GetIniValue(setting::kTextFontSize)));
  return {.background = BackgroundColour(settings.GetIniValue(setting::kBackground)),
          .text = {.font = settings.GetIniValue(setting::kTextFontName),
                   .size = font_size > 0.0F ? font_size : kDefaultFontSize,
                   .bold = IsTrue(settings.GetIniValue(setting::kTextFontBold)),
                   .italic = IsTrue(settings.GetIniValue(setting::kTextFontItalic)),
                   .colour = RawColour(settings.GetIniValue(setting::kTextColour))}};
}

}  // namespace zeb
