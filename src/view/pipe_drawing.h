#pragma once

#include "model/project.h"
#include "platform/drawing_surface.h"

namespace zeb {

// Draws the line of a pipe and its symbols (joints, hydrant, head) in the view in force, at the
// pipe's picture coordinates.
void DrawPipe(const Project& project, DrawingSurface& surface, int pipe);

[[nodiscard]] Point PictureStart(const Project& project, int pipe);
[[nodiscard]] Point PictureEnd(const Project& project, int pipe);
[[nodiscard]] Point PictureMiddle(const Project& project, int pipe);

}  // namespace zeb
