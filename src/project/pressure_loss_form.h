#pragma once

#include <string>
#include <vector>

#include "platform/form.h"
#include "services/session.h"

namespace zeb {

// The equation dialog: Hazen-Williams, or Darcy-Weisbach with water of a temperature. Density in
// kg/m3, viscosity in centipoise.
class PressureLossForm : public Form {
 public:
  // Shows what the project's fluid text says.
  PressureLossForm(Session& session, const std::string& fluid);

  [[nodiscard]] std::string_view Name() const override { return "frmPLF"; }
  [[nodiscard]] std::string_view Caption() const { return "Pressure Loss Equation  "; }
  [[nodiscard]] static std::vector<std::string> Equations();
  [[nodiscard]] static std::vector<std::string> Temperatures();

  void ComPLE_Click();
  void ComWaterTemp_Click();
  void cmdOK_Click();
  void cmdCancel_Click();

  std::string ComPLE;
  std::string ComWaterTemp;
  std::string txtDensity;
  std::string txtViscosity;
  bool WaterTempEnabled = false;

  bool Accepted = false;
  std::string Fluid;  // the text to use once accepted

 private:
  void ShowTemperatureOf(const std::string& fluid);

  Session& session_;
};

}  // namespace zeb
