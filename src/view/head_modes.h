#pragma once

#include "view/pointer_machine.h"

namespace zeb {

// A click takes the nearest head into those that operate, or out of them.
[[nodiscard]] PointerMode PickHeadMode();
// Drags a box that does so with all heads in it.
[[nodiscard]] PointerMode HeadBoxMode();

}  // namespace zeb
