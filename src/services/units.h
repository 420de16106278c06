#pragma once

#include <string>

#include "model/int16.h"

namespace zeb {

// Flows and pressures of the summary grids in the chosen unit, 1 to 3. Another unit number gives
// empty texts.
class Units {
 public:
  void SetPressureUnit(Int16 unit) { pressure_unit_ = unit; }
  void SetFlowUnit(Int16 unit) { flow_unit_ = unit; }
  [[nodiscard]] std::string PressureUnit() const;
  [[nodiscard]] std::string FlowUnit() const;
  [[nodiscard]] std::string FormatPressure(float bar) const;
  [[nodiscard]] std::string FormatFlow(float litres_per_minute) const;

 private:
  Int16 pressure_unit_ = 1;
  Int16 flow_unit_ = 1;
};

}  // namespace zeb
