#include "calc/calculate_command.h"

#include "calc/calc_summary.h"
#include "calc/calculation.h"
#include "calc/source_duty.h"
#include "calc/whole_network.h"
#include "model/model_state.h"
#include "services/text.h"

namespace zeb {
namespace {

void PrepareHeads(Session& session) {
  Project& project = session.project;
  if (project.SelectedHeadsMode == 1 && project.SelectedHeadCount > 0) {
    project.ModelState = model_state::kChecked;
    session.platform.shell.SetPanel(Panel::kMode, "CALCULATE");
    return;
  }
  project.ModelState = model_state::kChecked;
  PickAllHeads(session);
}

}  // namespace

bool Ccall(Session& session) {
  if (!TakeWholeNetwork(session)) return false;
  Project& project = session.project;
  project.CalcSource = 1;
  project.HeadDensityEdited = 0;
  project.DemandFlow = 0.0F;
  project.DemandPressure = 0.0F;
  const bool supply_named = Trim(ItemText(project, Item::kSupply)) != "None";
  PrepareHeads(session);
  if (supply_named) SilentDemand(session);
  return Calculation(session, CalculationMode::kInteractive);
}

void Dcalc(Session& session) { ShowCalcSummary(session); }

}  // namespace zeb
