#include "calc/calculation_stages.h"

#include <array>
#include <cstddef>

namespace zeb {

std::string_view CalculationStages::Name() const {
  static constexpr std::array<std::string_view, 13> kNames{
      "setup",        "show box",     "flow totals",  "head flows",     "Sizing/eq.lens",
      "loop balance", "head balance", "head min/max", "nozzle balance", "next iter",
      "pressures",    "min/max",      "summary"};
  return kNames.at(static_cast<std::size_t>(stage_));
}

}  // namespace zeb
