#pragma once

#include <vector>

#include "services/session.h"

namespace zeb {

// Values of CommandMode while operating heads are picked.
inline constexpr int kPickHeadCommand = 17;
inline constexpr int kHeadBoxCommand = 18;

// Begins a new pick of the heads that operate, one by one.
void Cind(Session& session);
// The same, by boxes.
void Cboxes(Session& session);
// Goes on with the present pick; a message when no heads are picked.
void Ccurr(Session& session);

// Takes a head into the pick, or out of it.
void ToggleHead(Session& session, int head);
// Toggles the heads whose pipe ends lie in a box of the picture, its edges included. The corners
// may come in any order.
void ToggleHeadsInBox(Session& session, float x1, float y1, float x2, float y2);

// Picks the heads at the ends of pipes to these nodes and no others. Answers the nodes that have no
// head.
std::vector<int> PickHeadsByNodes(Session& session, const std::vector<int>& nodes);

// Lets all heads operate.
void PickAllHeads(Session& session);

}  // namespace zeb
