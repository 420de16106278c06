#pragma once

#include <array>
#include <string>

#include "model/int16.h"
#include "model/limits.h"
#include "model/table.h"

namespace zeb {

// A water supply or pump: eight pairs of flow (L/min) and pressure (bar) at the values 0 and 1 to
// 14 and 15, and the tank's height in m at value 16.
using SupplyValues = std::array<float, kSupplyValues>;
inline constexpr int kTankHeightValue = 16;

struct SupplyTables {
  Table<SupplyValues, kLastSupply> SupplyTable;
  Table<std::string, kLastSupply> SupplyNames;
  Table<std::string, kLastSupply> SupplyPaths;  // the project that last used it
};

}  // namespace zeb
