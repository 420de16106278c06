#pragma once

#include "model/project.h"

namespace zeb {

// Sets PumpCurveIndex to the supply that the project names, row 1 when none has that name; 0 when
// that supply is no curve but means a demand.
void SelectSupply(Project& project);

// True for a row whose first pressure is above 0.5 bar and whose name does not begin with "NON".
[[nodiscard]] bool IsSupplyCurve(const Project& project, int row);

// The pressure in bar that the curve in force gives at a flow in L/min, with its tank's height.
// Sets OffCurve and answers the last point's pressure where the curve does not reach.
[[nodiscard]] float SupplyPressureAt(Project& project, float flow);

}  // namespace zeb
