#pragma once

#include "calc/summary_text.h"
#include "model/project.h"

namespace zeb {

// mm/min in one US gallon a minute and square foot.
inline constexpr float kUsDensity = 40.746F;

// The sections of the calculation summary, in their order.

// The supply in force, and how the design flow stands to the source flow.
void AddSupplySection(const Project& project, SummaryText& text);
// Heads below their duty, which are marked, and counts of heads and pipes.
void AddHeadDutySection(Project& project, SummaryText& text);
// What was sized, and which pipes run too fast.
void AddPipeSection(const Project& project, SummaryText& text);
// The remotest head, the place of a grid's design area, and the four most remote heads.
void AddRemoteSection(const Project& project, SummaryText& text);
// The extremes of all results.
void AddRangeSection(const Project& project, SummaryText& text);
// The files and rules behind the numbers.
void AddRuleSection(const Project& project, SummaryText& text);
// Flows, pressure and areas of the whole; sets ReportArea.
void AddSourceSection(Project& project, SummaryText& text);
// Pipes by whole m/s. Caps MaxVelocity at the last band.
void AddVelocityProfile(Project& project, SummaryText& text);
// Iterations and errors. True when all errors are within their limits.
[[nodiscard]] bool AddBalanceSection(const Project& project, SummaryText& text);
// The equations used, the time taken, and the end.
void AddClosingSection(const Project& project, SummaryText& text);

}  // namespace zeb
