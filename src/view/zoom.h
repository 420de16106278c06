#pragma once

#include "services/session.h"
#include "view/box_selection.h"

namespace zeb {

// Zoom commands: each asks for a box on a plan, Zinspec for heights first.
void Zinall(Session& session);
void Zinspec(Session& session);

// Asks for the heights that later views and zooms show.
void Vheight(Session& session);

// Zooms in on the pipes whose middles lie in the box that was dragged; without any, asks whether to
// drag another.
void ZoomToDraggedBox(Session& session);

// For a box without pipes: asks whether to drag a zoom box again, else ends the zoom.
void AskForAnotherBox(Session& session);

// The zoom box in the project, in picture units while it is dragged, then in m.
[[nodiscard]] Box ZoomBox(const SystemValues& values);
void StoreZoomBox(SystemValues& values, const Box& box);

}  // namespace zeb
