#include "project/head_selection.h"

namespace zeb {

void LeaveHeadSelection(Project& project) {
  project.SelectedHeadsMode = 0;
  project.SelectedHeadCount = 0;
}

}  // namespace zeb
