#include "calc/supply_curve.h"

#include <optional>

#include "calc/fluid.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kPairs = 8;
constexpr float kLeastCurvePressure = 0.5F;   // bar; a lower first pressure marks no curve
constexpr float kLeastSourcePressure = 0.1F;  // bar

// Points count from 1.
float FlowOf(const SupplyValues& curve, int point) { return curve.at(2 * point - 2); }
float PressureOf(const SupplyValues& curve, int point) { return curve.at(2 * point - 1); }

int NamedSupply(const Project& project) {
  const std::string name = Trim(ItemText(project, Item::kSupply));
  for (int row = 1; row <= project.SupplyCount; ++row) {
    if (Trim(project.SupplyNames[row]) == name) return row;
  }
  return 1;
}

// On the line through the first point at or behind the flow and the point before it.
std::optional<float> Interpolated(const SupplyValues& curve, double flow) {
  for (int point = 2; point <= kPairs; ++point) {
    const double q = FlowOf(curve, point);
    if (flow > q) continue;
    const double p = PressureOf(curve, point);
    const double slope = (p - PressureOf(curve, point - 1)) / (q - FlowOf(curve, point - 1));
    return static_cast<float>(flow * slope + p - slope * q);
  }
  return std::nullopt;
}

}  // namespace

bool IsSupplyCurve(const Project& project, int row) {
  return PressureOf(project.SupplyTable[row], 1) > kLeastCurvePressure &&
         !StartsWithNoCase(project.SupplyNames[row], "NON");
}

void SelectSupply(Project& project) {
  const int row = NamedSupply(project);
  project.PumpCurveIndex = IsSupplyCurve(project, row) ? row : 0;
}

float SupplyPressureAt(Project& project, float flow) {
  const SupplyValues& curve = project.SupplyTable[project.PumpCurveIndex];
  std::optional<float> pressure = Interpolated(curve, flow);
  if (!pressure || *pressure < kLeastSourcePressure) {
    project.OffCurve = 1;
    pressure = PressureOf(curve, kPairs);
  }
  return static_cast<float>(*pressure + curve.at(kTankHeightValue) / MetresPerBar(project));
}

}  // namespace zeb
