#pragma once

// The values of ModelState.
namespace zeb::model_state {

inline constexpr int kStale = 0;       // project data changed, tables not to be trusted
inline constexpr int kRead = 1;        // read or edited, not yet checked
inline constexpr int kChecked = 2;     // tables consistent with the lines
inline constexpr int kCalculated = 3;  // results stand in the tables

}  // namespace zeb::model_state
