#include <array>

#include "calc/fluid.h"
#include "calc/summary_sections.h"

namespace zeb {
namespace {

struct BalanceCheck {
  const char* label;
  float SystemValues::*error;
  const char* unit;
  float limit;
  const char* warning;
};

constexpr float kNoLimit = 1E38F;

constexpr std::array kChecks{
    BalanceCheck{"Max. node flow error: ", &SystemValues::NodeFlowError, " L/min", 0.1F,
                 "  WARNING   Must be <= 0.1 L/min"},
    BalanceCheck{" Pipes max. pd error: ", &SystemValues::PipePdError, " bar", 0.005F,
                 "  WARNING   Must be < 0.001 bar"},
    BalanceCheck{" Heads max. pd error: ", &SystemValues::HeadPdError, " bar", 0.001F,
                 "  WARNING   Must be < 0.001 bar"},
    BalanceCheck{" Max. error in loops: ", &SystemValues::LoopError, " bar", kNoLimit, ""},
    BalanceCheck{"Overall flow balance: ", &SystemValues::FlowBalance, " %", 1.0F,
                 "  WARNING   Must be < 1%"},
};

void AddDarcyFluid(const Project& project, SummaryText& text) {
  if (project.LossModel == kHazenWilliams) return;
  text.Line("");
  text.Line(project.LossModel == kDarcyByTable ? "Darcy Weisbach (Moody):" : "Darcy Weisbach:");
  text.Line("            Density : ", project.FluidDensity, kDensityColumn, "   kg/m3");
  text.Line("          Viscosity : ", project.FluidViscosity, kDensityColumn, "   centipoise");
  text.Line("");
}

}  // namespace

bool AddBalanceSection(const Project& project, SummaryText& text) {
  text.Line("   No. of iterations: ", project.IterationCount, kCountColumn);
  text.Line("   Relaxation factor: ", project.Relaxation, kFineColumn);
  bool balanced = true;
  for (const BalanceCheck& check : kChecks) {
    const float error = project.*check.error;
    text.Line(check.label, error, kFineColumn, check.unit);
    if (error <= check.limit) continue;
    text.Line(check.warning);
    balanced = false;
  }
  return balanced;
}

void AddClosingSection(const Project& project, SummaryText& text) {
  if (project.Schedule40Type > 0) text.Line("NFPA Eqn 6-4.3.1 used for non Sch 40 pipes");
  AddDarcyFluid(project, text);
  text.Line("    Calculation time: ", project.CalculationTime, {8, 2}, "   secs");
  text.Line("");
  text.Line("End of summary for " + project.ProjectPath);
}

}  // namespace zeb
