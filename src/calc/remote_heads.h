#pragma once

#include "services/session.h"

namespace zeb {

// Searches the four heads around the remotest head that enclose the lowest density, and the flows
// that tell whether a grid's design area is well placed. Sets MrHead1 to MrNode4, MrFlow to
// AmaoDifference, RemotestHead, RemotestNode and LeastDensityHead. A density below the required one
// shows its warning; a run-time failure shows a message and leaves what stands.
void SearchRemoteHeads(Session& session);

}  // namespace zeb
