#include "project/pressure_loss_form.h"

#include <array>

#include "project/project_items.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

// Water at a temperature in deg C, as the dialog offers it.
struct Water {
  std::string_view temperature;
  std::string_view density;
  std::string_view viscosity;
};

constexpr std::array<Water, 7> kWaters = {{
    {"4.4", "999.9", "1.5"},
    {"10.0", "999.7", "1.3"},
    {"15.6", "999.8", "1.1"},
    {"21.1", "998.0", "0.95"},
    {"26.7", "996.6", "0.85"},
    {"32.2", "995.4", "0.74"},
    {"37.8", "993.6", "0.66"},
}};

// The number behind a word such as "DENS=", as it is written; empty without the word.
std::string ValueText(const std::string& fluid, std::string_view word) {
  const std::string upper = UpperCase(fluid);
  const std::size_t at = upper.find(word);
  if (at == std::string::npos) return {};
  const std::string rest = TrimLeft(fluid.substr(at + word.size()));
  return rest.substr(0, rest.find(' '));
}

}  // namespace

std::vector<std::string> PressureLossForm::Equations() {
  return {std::string(kHazenWilliams), std::string(kDarcyWeisbach)};
}

std::vector<std::string> PressureLossForm::Temperatures() {
  std::vector<std::string> temperatures;
  temperatures.reserve(kWaters.size());
  for (const Water& water : kWaters) temperatures.emplace_back(water.temperature);
  return temperatures;
}

PressureLossForm::PressureLossForm(Session& session, const std::string& fluid)
    : ComPLE(kHazenWilliams), Fluid(fluid), session_(session), opened_(Chosen()) {
  if (ContainsNoCase(fluid, "NFPA 750") || ContainsNoCase(fluid, "DWF")) ShowTemperatureOf(fluid);
}

void PressureLossForm::ShowTemperatureOf(const std::string& fluid) {
  ComPLE = kDarcyWeisbach;
  txtDensity = ValueText(fluid, "DENS=");
  txtViscosity = ValueText(fluid, "VISC=");
  opened_ = Chosen();
  for (const Water& water : kWaters) {
    if (txtDensity.empty() || Val(txtDensity) != Val(water.density)) continue;
    ComWaterTemp = water.temperature;
    WaterTempEnabled = true;
    if (txtViscosity.empty()) txtViscosity = water.viscosity;
  }
}

void PressureLossForm::ComPLE_Click() {
  WaterTempEnabled = ComPLE == kDarcyWeisbach;
  ComWaterTemp = WaterTempEnabled ? std::string(kDefaultWaterTemperature) : std::string();
  txtDensity.clear();
  txtViscosity.clear();
  ComWaterTemp_Click();
}

void PressureLossForm::ComWaterTemp_Click() {
  for (const Water& water : kWaters) {
    if (water.temperature != ComWaterTemp) continue;
    txtDensity = water.density;
    txtViscosity = water.viscosity;
  }
}

void PressureLossForm::cmdOK_Click() {
  const Choice chosen = Chosen();
  const bool complete = !chosen.density.empty() && !chosen.viscosity.empty();
  if (chosen != opened_ && chosen.equation != kDarcyWeisbach) {
    Fluid = kWater;
  } else if (chosen != opened_ && complete) {
    Fluid = "DWF DENS=" + chosen.density + " VISC=" + chosen.viscosity;
  }
  Accepted = true;
  session_.platform.shell.Close(*this);
}

void PressureLossForm::cmdCancel_Click() { session_.platform.shell.Close(*this); }

}  // namespace zeb
