#pragma once

#include "model/project.h"
#include "platform/drawing_surface.h"

namespace zeb {

// Picks look for the nearest thing on the picture, less than 100 units away; of equals the first.
// They store the result in PickedPipe, 0 for none.

// The pipe that ends nearest; the node meant is its end node.
void LookupNode(Project& project, Point at);
// The pipe whose middle is nearest.
void LookupPipe(Project& project, Point at);
// The slot of the nearest head.
void LookupHead(Project& project, Point at);

}  // namespace zeb
