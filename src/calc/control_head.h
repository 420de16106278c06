#pragma once

#include "calc/head_balance.h"
#include "model/project.h"

namespace zeb {

// Sets ControlHead to the head that the source duty hangs on, and pins it to what it requires,
// unless a supply curve sets the source or all heads agree already.
void ChooseControlHead(Project& project, const PassFigures& figures);

}  // namespace zeb
