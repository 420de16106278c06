#pragma once

#include "view/pointer_machine.h"

namespace zeb {

// Drags the box of a zoom.
[[nodiscard]] PointerMode ZoomBoxMode();

}  // namespace zeb
