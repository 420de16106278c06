#pragma once

#include <array>
#include <string>

#include "model/project.h"
#include "services/session.h"

namespace zeb {

inline constexpr int kSupplyPairs = 8;
// The first supply, "None": it stands for no supply and is never edited.
inline constexpr int kNoSupplyRow = 1;

// The row whose name, in its first 26 characters and upper or lower case apart, is `name`; the last
// of several, 0 for none.
[[nodiscard]] int FindSupply(const Project& project, const std::string& name);

// The part of the project data form that picks a supply and edits the supplies. Flows are in L/min,
// pressures in bar, the height in m.
class SupplyEditor {
 public:
  explicit SupplyEditor(Session& session) : session_(session) {}

  // Selects the supply that the item names, or the first row. The first row is made if need be.
  void Load(const std::string& item_text);

  // Picks a row, which becomes the project's supply; an edit that was not stored is dropped.
  void lstSupply_Click(int row);
  // Clears the fields for a new supply.
  void cmdPumpAdd_Click();
  // Opens the selected supply.
  void cmbPumpEdit_Click();
  // Stores the fields and selects their supply.
  void cmbPumpSave_Click();

  // Leaving a field of a pair, counted from 0.
  void Flow_LostFocus(int pair);
  void Pressure_LostFocus(int pair);
  // False when the field must keep the focus.
  bool Reference_LostFocus();

  // Gives empty number fields their 0.
  void FillEmptyFields();

  [[nodiscard]] bool Editing() const { return edited_row_ != 0; }
  [[nodiscard]] int SelectedRow() const { return selected_row_; }

  // Whether the supply that the present results stand on was changed.
  [[nodiscard]] bool InForceChanged() const { return in_force_changed_; }

  std::string SupplyName;  // the text for the project's item
  std::array<std::string, kSupplyPairs> Flows;
  std::array<std::string, kSupplyPairs> Pressures;
  std::string Reference;
  std::string TankHeight;

 private:
  void ShowRow(int row);
  void StoreRow(int row);

  Session& session_;
  std::array<std::string, kSupplyPairs> checked_flows_;  // as last judged
  int selected_row_ = 0;
  int edited_row_ = 0;
  bool in_force_changed_ = false;
};

}  // namespace zeb
