#pragma once

#include "platform/drawing_surface.h"
#include "services/settings.h"

namespace zeb {

// The user's choices for the drawing.
struct DrawingSettings {
  Colour background;
  TextStyle text;
};

// Read anew for each redraw, so that a change shows at the next one.
[[nodiscard]] DrawingSettings ReadDrawingSettings(Settings& settings);

}  // namespace zeb
