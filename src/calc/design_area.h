#pragma once

#include <string>

#include "model/project.h"

namespace zeb {

// In a grid (4 loops or more), finds the flows at both ends of the range in which the centre head
// stands: AmaoFlowA where the range leaves its main, AmaoFlowB at its other end, L/min, and their
// difference. Leaves them alone when the head is in no loop.
void FindDesignAreaFlows(Project& project, int centre_head);

// True when the flows are known and the project's area reference tells the most remote or most
// unfavourable area.
[[nodiscard]] bool HasDesignAreaGrade(const Project& project);

// How well the area of maximum operation is placed, by the difference of the flows against the flow
// of the remotest head; empty exactly between two grades.
[[nodiscard]] std::string DesignAreaGrade(const Project& project);

// True for an area reference of the most remote or most unfavourable area, in any case.
[[nodiscard]] bool IsUnfavourableArea(const Project& project);

}  // namespace zeb
