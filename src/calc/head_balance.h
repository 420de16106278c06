#pragma once

#include <limits>
#include <span>

#include "model/project.h"

namespace zeb {

// What one pass of the calculation notes over the operating heads; head 0 is none.
struct PassFigures {
  float highest_required = 0.0F;  // source pressure, bar
  int highest_head = 0;
  float lowest_required = 0.0F;

  int over_final_tol = 0;  // heads that the source pressure misses by more
  int over_pressure_tol = 0;

  float largest_change = 0.0F;  // of a head's flow, L/min

  float least_margin = std::numeric_limits<float>::max();  // above the required pressure, bar
  int least_margin_head = 0;

  float least_density = std::numeric_limits<float>::max();  // mm/min
  int least_density_head = 0;
  float least_density_flow_before = 0.0F;  // that head's flow before this pass, L/min
};

// Sets HeadSourcePressure, the source pressure with which each head would keep its pressure, and
// notes the highest and lowest.
void FindRequiredPressures(Project& project, std::span<const int> heads, PassFigures& figures);

// Moves every head under Relaxation towards the pressure that the source leaves it, by the head
// law, and notes how far off the heads were and which of them has least.
void MoveHeads(Project& project, std::span<const int> heads, PassFigures& figures);

}  // namespace zeb
