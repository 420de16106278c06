#pragma once

#include "platform/drawing_surface.h"
#include "services/session.h"

namespace zeb {

// Moves the zoomed plan by its own size, index 0 to 7 for north and on clockwise to north west, as
// far as the network reaches.
void pan_Click(Session& session, int index);

// The wheel and the middle button on a plan. Nothing happens while a zoom box is awaited.

// Zooms by a quarter for each notch, in for positive ones, and keeps the place under the pointer.
// Zooming out ends at the whole network.
void ZoomAtPointer(Session& session, Point pointer, int notches);
// Moves a zoomed plan with the pointer.
void DragPlan(Session& session, Point from, Point to);
// Shows the whole network, in any view.
void FitAll(Session& session);

}  // namespace zeb
