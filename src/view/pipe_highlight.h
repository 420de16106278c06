#pragma once

#include "model/project.h"
#include "platform/drawing_surface.h"

namespace zeb {

// Marks one pipe green on the picture and puts the one marked before back to blue; 0 marks none.
// The next redraw wipes the mark.
void HighlightPipe(Project& project, DrawingSurface& surface, int pipe);

}  // namespace zeb
