#pragma once

#include <array>
#include <string>

#include "platform/form.h"
#include "services/session.h"

namespace zeb {

// Asks how the unsized pipes of a calculation are to be sized.
class SizingForm : public Form {
 public:
  // Works out FurthestLength to NearestNode.
  explicit SizingForm(Session& session);

  [[nodiscard]] std::string_view Name() const override { return "frmCalcAutoSize"; }
  // True once OK was accepted.
  [[nodiscard]] bool Accepted() const { return accepted_; }

  void Option1_Click();
  void Option2_Click();
  void Option3_Click();
  void cmdZeroPipes_Click();
  // Takes over what was entered and reads the project again.
  void OK_Click();
  void Cancel_Click();

  std::string Caption = "Calculation of unsized pipes";
  bool Option1 = false;           // velocity
  bool Option2 = false;           // pressure drop by length
  bool Option3 = false;           // total pressure drop
  std::array<std::string, 4> ot;  // m/s, mbar/m, bar; smallest nominal size in mm
  std::array<bool, 4> otEnabled{};

  std::string lblUnsized;
  std::string lblSized;
  std::string lblFurthest;
  std::string lblNearest;
  std::string lblHighest;

 private:
  void ShowInformation();
  void ChooseMethod(int method);
  void StoreLimits();

  Session& session_;
  bool accepted_ = false;
};

}  // namespace zeb
