#include <string>

#include "calc/design_area.h"
#include "calc/summary_sections.h"
#include "services/design_authorities.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kCurvePoints = 8;

void AddCurve(const Project& project, const SupplyValues& supply, SummaryText& text) {
  text.Line("Balanced to " + Trim(project.SupplyNames[project.PumpCurveIndex]));
  for (int point = 0; point < kCurvePoints; ++point) {
    const std::size_t value = 2 * static_cast<std::size_t>(point);
    text.Line(FixedNumber(supply.at(value), 13, 0) +
              " L/min : " + FixedNumber(supply.at(value + 1), 9, 3) + " bars");
  }
}

void AddOffCurveWarning(const Project& project, SummaryText& text) {
  if (project.OffCurve == 0) return;
  text.Line("WARNING! Flow is beyond pump curve");
  text.Line("         so highest pressure taken");
}

// What a tank holds for the source flow over a duration.
void AddTank(const Project& project, const SupplyValues& supply, SummaryText& text) {
  if (project.RuleType != kRulesGeneral) return;
  text.Line(std::string("Flow rate = ") + (IsUnfavourableArea(project) ? "qcap" : "Qmax") +
            " as tank ht of" + Fixed(supply.at(kTankHeightValue), kLengthColumn) + " m included");
  for (const int minutes : {30, 60, 90}) {
    const float volume = project.SourceFlow * (static_cast<float>(minutes) / 1000.0F);
    text.Line("For " + PlainText(minutes) + " mins duration: ", volume, kVolumeColumn,
              " cu.m tank");
  }
}

}  // namespace

void AddSupplySection(const Project& project, SummaryText& text) {
  const bool curve = project.PumpCurveIndex > 0;
  if (curve) {
    text.Line("Source Duty: " + FormatDecimals(project.DemandFlow, 1) + " L/min " +
              FormatDecimals(project.DemandPressure, 3) + " bar");
  }
  const double efficiency = 100.0 * project.DesignFlow / project.SourceFlow;
  text.Line("   Design Efficiency:    " + FormatDecimals(efficiency, 0) + " %");
  if (!curve) return;
  const SupplyValues& supply = project.SupplyTable[project.PumpCurveIndex];
  AddCurve(project, supply, text);
  AddOffCurveWarning(project, text);
  AddTank(project, supply, text);
}

}  // namespace zeb
