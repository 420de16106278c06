#include "calc/calculation_messages.h"

#include <string>
#include <utility>

#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

void ShowBox(Session& session, MessageIcon icon, std::string title, std::string text) {
  session.platform.dialogs.Show({.title = std::move(title), .text = std::move(text), .icon = icon});
}

void Warn(Session& session, std::string title, std::string text) {
  ShowBox(session, MessageIcon::kWarning, std::move(title), std::move(text));
}

int CountLowEndPressures(const Project& project) {
  int count = 0;
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    if (project.PipeEndPressure[pipe] < 0.1F) ++count;
  }
  return count;
}

}  // namespace

void WarnOfCurveStart(Session& session) {
  const Project& project = session.project;
  const float first_flow = project.SupplyTable[project.PumpCurveIndex].front();
  if (project.PumpCurveIndex == 0 || first_flow <= 10.0F) return;
  Warn(session, "Perhaps incorrect pump curve",
       "Your first flow value is" + SignedText(first_flow) +
           " l/min and should be zero so you may not get the right answers for this system");
}

void ShowNothingOperates(Session& session) {
  Warn(session, "Cannot calculate!", "There are no operating sprinkler heads so flow = 0");
}

void ShowHydrantsNeedCurve(Session& session) {
  Warn(session, "You must specify a pump curve if you have hydrant(s) and no heads",
       "Hydrants have a constant flow rate so you should change the hydrant to a 'big' sprinkler "
       "head with the correct 'k' factor based on the required pressure OR change the furthest "
       "hydrant to an 'added building' where you can specify the same flow rate but at a given "
       "pressure");
}

void WarnOfHighHead(Session& session) {
  const float highest = session.project.MaxHeadHeight;
  if (highest <= 100.0F) return;
  Warn(session, "Highest head is" + SignedText(highest) + " m above the source node!",
       "Are you sure you have the right pipe slopes or Up/Down directions?");
}

void WarnOfHighDensity(Session& session) {
  const auto density = static_cast<float>(Val(ItemText(session.project, Item::kDensity)));
  if (density <= 100.0F) return;
  Warn(session, "Is density of coverage right?",
       "Density specified =" + SignedText(density) +
           " mm/min means that your source flow and pressure will be quite high.");
}

void ShowCalculationFailed(Session& session) {
  ShowBox(session, MessageIcon::kStop, "Calculation Error",
          "ZEB has not been able to complete the calculation please try selecting a new set of "
          "heads / nozzles");
}

void WarnOfManyIterations(Session& session) {
  constexpr int kManyIterations = 88;
  if (session.project.Iteration <= kManyIterations) return;
  Warn(session, "Calculation Error - 1",
       "ZEB has not been able to hydraulic balancing this project");
}

void WarnOfUnlikelyDuty(Session& session) {
  const Project& project = session.project;
  if (project.SourceFlow <= 32000.0F && project.SourcePressure <= 300.0F &&
      project.MaxVelocity <= 50.0F) {
    return;
  }
  std::string text("These seem a bit high!");
  text.append(kLineBreak)
      .append("Perhaps wrong density or head 'k' factors or some pipes are far too small.");
  Warn(session,
       "Source duty =" + SignedText(project.SourceFlow) + " L/min at" +
           SignedText(project.SourcePressure) +
           " bars with max velocity =" + SignedText(project.MaxVelocity) + " m/s",
       std::move(text));
}

void WarnOfLowEndPressures(Session& session) {
  const int count = CountLowEndPressures(session.project);
  if (count == 0) return;
  Warn(session, "Source duty is not high enough",
       "There are" + SignedText(count) + " pipes with end pressures less than 0.1 bar");
}

void WarnOfFlowOffCurve(Session& session) {
  const Project& project = session.project;
  if (project.OffCurve == 0) return;
  const SupplyValues& curve = project.SupplyTable[project.PumpCurveIndex];
  Warn(session, "Source flow =" + SignedText(project.SourceFlow) + " L/min is off pump curve",
       "Your specified water supply / pump curve only goes up to" + SignedText(curve[14]) +
           " L/min at" + SignedText(curve[15]) +
           " bars so this value has been taken as the source pressure");
}

}  // namespace zeb
