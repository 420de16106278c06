#pragma once

#include "model/project.h"

namespace zeb {

// The mark of a pressure that is not known yet, bar.
inline constexpr float kUnsetPressure = -100.0F;

// Empties PipeStartPressure and PipeEndPressure of all pipes.
void ClearNodePressures(Project& project);

// Spreads SourcePressure from the source over all nodes, pipe by pipe along the flows' drops and
// the pipes' rises, into PipeStartPressure and PipeEndPressure (bar).
void SpreadNodePressures(Project& project);

}  // namespace zeb
