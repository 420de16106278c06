#pragma once

#include "model/project.h"
#include "platform/drawing_surface.h"
#include "view/display_items.h"

namespace zeb {

// Draws the texts of the display item for one pipe, with its arrow where the item has one. A pipe
// without a text gets nothing.
void DrawPipeTexts(const Project& project, DrawingSurface& surface, DisplayTexts& texts, int pipe);

}  // namespace zeb
