#pragma once

#include "platform/drawing_surface.h"
#include "services/session.h"

namespace zeb {

// Draws the whole network in the view in force, from the model tables alone, and keeps the picture
// coordinates of every pipe drawn for picks and selection. Also tells the status bar and the pan
// arrows what is shown. A failure asks the user whether to go on.
void DrawView(Session& session, DrawingSurface& surface);

// Shows the view's title and the hint of the command in force, or the heights that are shown.
void ShowViewTitle(Session& session);

// Chooses the display item, 0 to 17, and redraws.
void PickDisplayItem(Session& session, int item);

// Asks for colours by size; each redraw goes back to the plain colours.
void Vpipes(Session& session);

}  // namespace zeb
