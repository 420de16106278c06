#pragma once

#include <string>

#include "services/session.h"

namespace zeb {

// The part of the project data form that edits the project's head codes. What it changes is changed
// at once, whether or not the form is applied.
class HeadCodeEditor {
 public:
  explicit HeadCodeEditor(Session& session) : session_(session) {}

  // Picks a line, by its position from 1, and shows it in the fields.
  void lstHeadCodes_Click(int position);
  // Opens the fields for a new code, or for the selected one if this project may change it.
  void cmdAddHeadCode_Click();
  void cmdEdit_Click();
  // Stores what the fields hold. Values that their columns cannot hold are refused.
  void cmdApplyHeadCode_Click();
  void cmdCancelHeadCode_Click();
  // Appends a library, and writes one.
  void cmdLoad_Click();
  void cmdSave_Click();

  // While the fields are open for entry the other commands are disabled.
  [[nodiscard]] bool Editing() const { return entry_ != Entry::kNone; }
  [[nodiscard]] int SelectedPosition() const { return selected_; }

  std::string Size;         // orifice, mm
  std::string KFactor;      // L/min per root bar
  std::string MinPressure;  // bar
  std::string HeadName;

  int Changes = 0;

 private:
  enum class Entry { kNone, kNew, kSelected };

  void ShowFields(int position);
  void StoreFields();
  void CountChange();

  Session& session_;
  int selected_ = 0;
  Entry entry_ = Entry::kNone;
};

}  // namespace zeb
