#include "project/supplies.h"

#include <algorithm>

#include "model/real_arithmetic.h"
#include "services/number_text.h"
#include "services/procedure.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kComparedWidth = 26;
constexpr float kLargestFlow = 99999.0F;    // L/min
constexpr float kLargestPressure = 300.0F;  // bar

std::string ComparedName(const std::string& name) {
  return UpperCase(PadOrCut(Trim(name), kComparedWidth));
}

float NumberOf(const std::string& field) { return RoundToSingle(Val(field)); }

float ClippedFlow(const std::string& field) {
  return std::clamp(NumberOf(field), 0.0F, kLargestFlow);
}

float ClippedPressure(const std::string& field) {
  return std::clamp(NumberOf(field), 0.0F, kLargestPressure);
}

// The first supply of a session that has none yet.
void MakeNoSupply(Project& project) {
  project.SupplyTable[kNoSupplyRow] = {};
  project.SupplyNames[kNoSupplyRow] = "None";
  project.SupplyCount = kNoSupplyRow;
}

}  // namespace

int FindSupply(const Project& project, const std::string& name) {
  int found = 0;
  for (int row = 1; row <= project.SupplyCount; ++row) {
    if (ComparedName(project.SupplyNames[row]) == ComparedName(name)) found = row;
  }
  return found;
}

void SupplyEditor::Load(const std::string& item_text) {
  if (session_.project.SupplyCount == 0) MakeNoSupply(session_.project);
  const int row = FindSupply(session_.project, item_text);
  selected_row_ = row == 0 ? kNoSupplyRow : row;
  ShowRow(selected_row_);
  SupplyName = item_text;
}

void SupplyEditor::ShowRow(int row) {
  const SupplyValues& values = session_.project.SupplyTable[row];
  for (std::size_t pair = 0; pair < kSupplyPairs; ++pair) {
    Flows[pair] = PlainText(values[2 * pair]);
    Pressures[pair] = PlainText(values[2 * pair + 1]);
  }
  checked_flows_ = Flows;
  Reference = session_.project.SupplyNames[row];
  TankHeight = PlainText(values[kTankHeightValue]);
}

void SupplyEditor::lstSupply_Click(int row) {
  edited_row_ = 0;
  selected_row_ = row;
  ShowRow(row);
  SupplyName = Reference;
}

void SupplyEditor::cmdPumpAdd_Click() {
  edited_row_ = session_.project.SupplyCount + 1;
  Flows.fill({});
  Pressures.fill({});
  checked_flows_.fill({});
  Reference.clear();
  TankHeight.clear();
}

void SupplyEditor::cmbPumpEdit_Click() {
  if (selected_row_ > kNoSupplyRow) edited_row_ = selected_row_;
}

void SupplyEditor::cmbPumpSave_Click() {
  if (!Editing() || !Reference_LostFocus()) return;
  Procedure proc(session_, "ZEBF02", "cmbPumpSave_Click");
  proc.Step(10, [&] { FillEmptyFields(); });
  const bool stored = proc.Step(20, [&] { StoreRow(edited_row_); });
  const int row = edited_row_;
  edited_row_ = 0;
  proc.Step(30, [&] { stored ? lstSupply_Click(row) : ShowRow(selected_row_); });
}

void SupplyEditor::StoreRow(int row) {
  SupplyValues values{};
  for (std::size_t pair = 0; pair < kSupplyPairs; ++pair) {
    values[2 * pair] = ClippedFlow(Flows[pair]);
    values[2 * pair + 1] = ClippedPressure(Pressures[pair]);
  }
  values[kTankHeightValue] = NumberOf(TankHeight);

  Project& project = session_.project;
  in_force_changed_ |= row == project.PumpCurveIndex && project.SupplyTable[row] != values;
  project.SupplyTable[row] = values;
  project.SupplyNames[row] = Trim(Reference);
  if (row > project.SupplyCount) project.SupplyCount = row;
}

void SupplyEditor::Flow_LostFocus(int pair) {
  const auto index = static_cast<std::size_t>(pair);
  std::string& field = Flows.at(index);
  if (Trim(field).empty() || field == checked_flows_[index]) return;

  Procedure proc(session_, "ZEBF02", "et_LostFocus");
  proc.Step(10, [&] {
    field = PlainText(ClippedFlow(field));
    const float before = pair == 0 ? 0.0F : ClippedFlow(Flows[index - 1]);
    if (ClippedFlow(field) < before) {
      session_.platform.dialogs.Show(
          {.title = "Flows must be in ascending order",
           .text = "The flow just entered is less than the previous value of" + SignedText(before) +
                   " L/min",
           .icon = MessageIcon::kWarning});
      field = "0";
    }
  });
  checked_flows_[index] = field;
}

void SupplyEditor::Pressure_LostFocus(int pair) {
  std::string& field = Pressures.at(static_cast<std::size_t>(pair));
  if (Trim(field).empty()) return;
  Procedure proc(session_, "ZEBF02", "et_LostFocus");
  proc.Step(20, [&] { field = PlainText(ClippedPressure(field)); });
}

bool SupplyEditor::Reference_LostFocus() {
  if (!Trim(Reference).empty()) return true;
  session_.platform.dialogs.Show({.title = "You have not given a water supply / pump reference!",
                                  .text = "Please ensure you give some text as a reference",
                                  .icon = MessageIcon::kWarning});
  return false;
}

void SupplyEditor::FillEmptyFields() {
  const auto fill = [](std::string& field) {
    if (Trim(field).empty()) field = "0";
  };
  std::for_each(Flows.begin(), Flows.end(), fill);
  std::for_each(Pressures.begin(), Pressures.end(), fill);
  fill(TankHeight);
}

}  // namespace zeb
