#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/form.h"
#include "services/session.h"

namespace zeb {

// The options of a calculation, asked before it begins.
class CalcOptionsForm : public Form {
 public:
  explicit CalcOptionsForm(Session& session);

  [[nodiscard]] std::string_view Name() const override { return "frmCalc"; }
  // True once OK was accepted.
  [[nodiscard]] bool Accepted() const { return accepted_; }

  // Takes over what was entered. An unknown node shows a message and leaves the form open.
  void OK_Click();
  void Cancel_Click();
  // Answers the character to put in place of the one typed.
  [[nodiscard]] static char ot_KeyPress(char key) { return key == ',' ? '.' : key; }
  void chkFind_MRH_Click();
  void chkNo_MRH_Click();

  std::string Caption = "Calculate - Options";
  std::string ComWaterSupply;
  std::vector<std::string> ComWaterSupplyList;
  std::array<std::string, 4> ot;  // minVel, maxVel, maxPD, node of the most remote head
  bool NodeEnabled = false;       // ot(3)
  bool chkFind_MRH = false;
  bool chkNo_MRH = false;
  bool chkPartSave = false;
  bool chkCalcSource = false;
  std::string txtComment;

  std::string lblDensity;     // the density and the heads' area
  std::string lblDesignArea;  // the area reference of the project
  std::string lblAreaNote;    // why the area is shown in red
  bool DesignAreaRed = false;

 private:
  void ShowRemoteNode();
  void ShowDesignArea();
  void ApplyNodeChoice();
  void StoreTexts();
  void ReadLimits();
  void KeepLimits();
  void CorrectLimits();
  // False, with a message, when the node is no head's.
  bool StoreRemoteNode();

  Session& session_;
  bool accepted_ = false;
};

}  // namespace zeb
