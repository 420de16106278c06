#include "calc/source_duty.h"

#include <cmath>
#include <utility>

#include "calc/calculation.h"
#include "services/number_text.h"

namespace zeb {

std::string SourceDutyLine(const Project& project) {
  return (project.PumpCurveIndex != 0 ? "Supply Duty =" : "Source Duty =") +
         FixedNumber(project.SourceFlow, 8, 1) + " L/min @" +
         FixedNumber(project.SourcePressure, 8, 3) + " bar";
}

double RoundHalfUp(double value, int decimals) {
  const double scale = std::pow(10.0, decimals);
  return std::floor(value * scale + 0.5) / scale;
}

void SilentDemand(Session& session) {
  Project& project = session.project;
  std::string supply = std::exchange(ItemText(project, Item::kSupply), "None");
  Calculation(session, CalculationMode::kSilent);
  ItemText(project, Item::kSupply) = std::move(supply);
  project.DemandFlow = static_cast<float>(RoundHalfUp(project.SourceFlow, 1));
  project.DemandPressure = static_cast<float>(RoundHalfUp(project.SourcePressure, 3));
}

}  // namespace zeb
