#pragma once

#include <span>
#include <vector>

#include "model/project.h"

namespace zeb {

// True for each head, or in selected-heads mode for a head that was picked.
[[nodiscard]] bool HeadOperates(const Project& project, int head);
// The slots of the operating heads, ascending.
[[nodiscard]] std::vector<int> OperatingHeads(const Project& project);

// The head law: flow = K root(pressure / SG), in L/min and bar.
[[nodiscard]] float HeadFlowAt(const Project& project, int head, float pressure);
[[nodiscard]] float HeadPressureAt(const Project& project, int head, float flow);

// In m, also before a calculation sets HeadHeight and for heads that do not operate.
[[nodiscard]] float HeightAboveSource(const Project& project, int head);

// Puts each head at the flow of its density, and outside the restart state at its minimum pressure
// where that asks for more; HeadStartPressure keeps what the head requires. Adds the flows to
// DesignFlow.
void StartHeads(Project& project, std::span<const int> heads);

// Empties all pipes and lets the hydrants draw their flows along their paths.
void StartPipeFlows(Project& project);

// Sets HeadHeight and adds HeadFlowChange to all pipes on each head's path.
void PushHeadFlowChanges(Project& project, std::span<const int> heads);

}  // namespace zeb
