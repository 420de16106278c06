#include "check/pump_search.h"

#include <string>

#include "services/text.h"

namespace zeb {
namespace {

constexpr int kNameWidth = 26;
constexpr int kFirstPressure = 1;  // in the values of a supply

// The last row of that name, 0 for none.
int RowOfName(const Project& project, const std::string& name) {
  const std::string wanted = PadOrCut(name, kNameWidth);
  for (int row = project.SupplyCount; row >= 1; --row) {
    if (PadOrCut(project.SupplyNames[row], kNameWidth) == wanted) return row;
  }
  return 0;
}

}  // namespace

bool FindPump(Project& project) {
  const int row = RowOfName(project, ItemText(project, Item::kSupply));
  const bool is_pump = project.SupplyTable[row][kFirstPressure] > 0.5F &&
                       !StartsWithNoCase(project.SupplyNames[row], "NON");
  project.PumpRow = is_pump ? row : 0;
  if (is_pump) project.SupplyPaths[row] = project.ProjectPath;
  return is_pump;
}

}  // namespace zeb
