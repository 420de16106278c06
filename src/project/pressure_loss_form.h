#pragma once

#include <string>
#include <vector>

#include "platform/form.h"
#include "services/session.h"
#include "services/text.h"

namespace zeb {

// The equation dialog: Hazen-Williams, or Darcy-Weisbach with water of a temperature. Density in
// kg/m3, viscosity in centipoise.
class PressureLossForm : public Form {
 public:
  // Shows what the project's fluid text says. OK keeps that text, with all else that it holds,
  // when nothing was changed here.
  PressureLossForm(Session& session, const std::string& fluid);

  [[nodiscard]] std::string_view Name() const override { return "frmPLF"; }
  [[nodiscard]] static std::vector<std::string> Equations();
  [[nodiscard]] static std::vector<std::string> Temperatures();

  void ComPLE_Click();
  void ComWaterTemp_Click();
  void cmdOK_Click();
  void cmdCancel_Click();

  std::string Caption = "Pressure Loss Equation  ";
  std::string ComPLE;
  std::string ComWaterTemp;
  std::string txtDensity;
  std::string txtViscosity;
  bool WaterTempEnabled = false;

  bool Accepted = false;
  std::string Fluid;  // the text to use once accepted

 private:
  struct Choice {
    std::string equation;
    std::string density;
    std::string viscosity;
    bool operator==(const Choice&) const = default;
  };

  void ShowTemperatureOf(const std::string& fluid);
  [[nodiscard]] Choice Chosen() const { return {ComPLE, Trim(txtDensity), Trim(txtViscosity)}; }

  Session& session_;
  Choice opened_;
};

}  // namespace zeb
