#include "calc/fluid.h"

#include <string>

#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

// Water of 21.1 C.
constexpr double kWaterDensity = 998.0;   // kg/m3
constexpr double kWaterViscosity = 0.95;  // centipoise

constexpr double kJointLength = 0.3;  // m

int LossModelOf(std::string_view fluid) {
  if (Contains(fluid, "DWF")) return kDarcyByFormula;
  if (Contains(fluid, "750")) return kDarcyByTable;
  return kHazenWilliams;
}

// The text behind the first `mark`, empty without one.
std::string_view Behind(std::string_view text, std::string_view mark) {
  const auto at = text.find(mark);
  return at == std::string_view::npos ? std::string_view() : text.substr(at + mark.size());
}

double ValueBehind(std::string_view text, std::string_view mark, double default_value) {
  return Contains(text, mark) ? Val(Behind(text, mark)) : default_value;
}

}  // namespace

double ReadCommentValue(std::string_view keyword, std::string_view text, double default_value) {
  const std::string upper = UpperCase(text);
  const std::string assignment = std::string(keyword) + '=';
  if (!Contains(upper, assignment)) return default_value;
  for (const std::string& word : Split(upper, " ")) {
    if (!Contains(word, keyword)) continue;
    if (!Contains(word, assignment)) return default_value;
    const std::string number = '0' + std::string(Behind(word, assignment));
    return IsNumeric(number) ? Val(number) : default_value;
  }
  return default_value;
}

void ReadFluidSettings(Project& project) {
  const std::string& fluid = ItemText(project, Item::kFluid);
  const std::string upper = UpperCase(fluid);
  project.LossModel = LossModelOf(fluid);
  project.FluidDensity = static_cast<float>(ValueBehind(upper, "DENS=", kWaterDensity));
  project.FluidViscosity = static_cast<float>(ValueBehind(upper, "VISC=", kWaterViscosity));
  project.FluidSG = static_cast<float>(ReadCommentValue("SG", fluid, 1.0));
  project.VJ =
      static_cast<float>(ReadCommentValue("VJ", ItemText(project, Item::kComments), kJointLength));
  project.DrySystem = Contains(upper, "DRY") ? 1 : 0;
  project.DryFromPipe = ValInt16(Behind(fluid, "#"));
}

double MetresPerBar(const Project& project) {
  return static_cast<double>(project.AuthorityStatic) / project.FluidSG;
}

}  // namespace zeb
