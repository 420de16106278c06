#pragma once

#include <string>

#include "services/session.h"

namespace zeb {

// "Source Duty =  1446.2 L/min @   3.790 bar", or "Supply Duty =..." when a curve is in force.
[[nodiscard]] std::string SourceDutyLine(const Project& project);

// Rounds to the given number of decimals: the floor of the scaled value plus 0.5.
[[nodiscard]] double RoundHalfUp(double value, int decimals);

// Calculates silently without a supply and keeps the duty that the system asks for as DemandFlow
// and DemandPressure; both are 0 when that calculation failed. The supply is put back.
void SilentDemand(Session& session);

}  // namespace zeb
