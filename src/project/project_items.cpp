#include "project/project_items.h"

#include "project/pipe_data_reader.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

// Water at a temperature in deg C, for new projects. Density in kg/m3, viscosity in centipoise.
struct WaterFluid {
  std::string_view temperature;
  std::string_view text;
};

constexpr std::array<WaterFluid, 7> kWaterFluids = {{
    {"4.4", "DWF DENS=999.9 VISC=1.5"},
    {"10.0", "DWF DENS=999.7 VISC=1.3"},
    {"15.6", "DWF DENS=998.8 VISC=1.1"},
    {kDefaultWaterTemperature, "DWF DENS=998.0 VISC=0.95"},
    {"26.7", "DWF DENS=996.6 VISC=0.85"},
    {"32.2", "DWF DENS=995.4 VISC=0.76"},
    {"37.8", "DWF DENS=993.6 VISC=0.66"},
}};

std::string FluidAt(std::string_view temperature) {
  for (const WaterFluid& fluid : kWaterFluids) {
    if (fluid.temperature == temperature) return std::string(fluid.text);
  }
  return FluidAt(kDefaultWaterTemperature);
}

std::string FirstShownAuthority(const DesignAuthorities& authorities) {
  for (const DesignAuthority& authority : authorities.Rows()) {
    if (authority.shown) return authority.name;
  }
  return std::string(ItemOf(Item::kAuthority).empty_text);
}

}  // namespace

const ProjectItem& ItemOf(Item item) {
  return kProjectItems.at(static_cast<std::size_t>(item) - 1);
}

std::string DefaultItemText(const Project& project, Item item) {
  return item == Item::kPipeData ? project.PipeDataFile : std::string(ItemOf(item).empty_text);
}

std::string NewProjectPipeData(Session& session) {
  return session.settings.GetIniValue(setting::kDefaultPipeData);
}

std::string NewProjectAuthority(Session& session) {
  const std::string chosen = session.settings.GetIniValue(setting::kDefaultAuthorityOfProject);
  return chosen.empty() ? FirstShownAuthority(session.authorities) : chosen;
}

std::string NewProjectFluid(Session& session) {
  const std::string formula = session.settings.GetIniValue(setting::kDefaultLossEquation);
  if (formula != kDarcyWeisbach) return std::string(kWater);
  return FluidAt(session.settings.GetIniValue(setting::kDefaultWaterTemperature));
}

std::string NextIssueText(const std::string& item, const std::string& date) {
  constexpr std::string_view kIssue = "Issue";
  const std::size_t colon = item.find(':');
  int next = 1;
  if (item.starts_with(kIssue) && colon != std::string::npos) {
    next = ValInt16(item.substr(kIssue.size(), colon - kIssue.size())) + 1;
  }
  return "Issue " + PlainText(next) + " : " + date;
}

}  // namespace zeb
