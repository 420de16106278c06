#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/form.h"
#include "project/head_code_editor.h"
#include "project/pipe_text_boxes.h"
#include "project/supplies.h"
#include "services/session.h"

namespace zeb {

// The project data form: the 18 items, the head codes, the water supplies, and the pipe lines as
// plain text.
class ProjectDataForm : public Form {
 public:
  explicit ProjectDataForm(Session& session);

  [[nodiscard]] std::string_view Name() const override { return "ZEBF02"; }

  void Form_Load();
  void cmdApply_Click();
  void cmdCancel_Click();
  // Esc and the frame's button: Cancel, but not by mistake.
  void Form_QueryUnload();
  void cmdIssue_Click();
  void cmdDWF_Click();
  void cmdCompact_Click();

  // Opens the form that empties an item's list; items without stored texts have none.
  void ShowStoredReferences(Item item);

  // The text of an item; the supply's is picked in `Supplies`.
  [[nodiscard]] std::string& Field(Item item);
  // What an item's list offers.
  [[nodiscard]] std::vector<std::string> ListOf(Item item) const;
  [[nodiscard]] std::vector<std::string> HeadCodeRows() const;
  [[nodiscard]] std::vector<std::string> SupplyRows() const;
  // False while a head code or a supply is open for entry.
  [[nodiscard]] bool CommandsEnabled() const;

  std::string Caption;
  HeadCodeEditor HeadCodes;
  SupplyEditor Supplies;
  PipeTextBoxes Text;

 private:
  using ItemTexts = std::array<std::string, kItemCount + 1>;  // by item number

  void LoadItems();
  void LoadNewProjectItems();
  void RenewPipeDataIfChanged(Item item);
  void FillEmptyItems();
  void StoreItems();
  void StoreReferences();
  void StoreRemainingItems();
  void SaveIfChanged();
  void CloseForm();
  void RenewTables();
  void KeepChoicesOfNewProject();
  [[nodiscard]] bool IsNewProject() const;
  [[nodiscard]] bool IsChanged(Item item) const;
  [[nodiscard]] bool IsAnythingChanged() const;
  [[nodiscard]] std::vector<std::string> PipeDataFiles() const;
  [[nodiscard]] std::vector<std::string> Authorities() const;

  Session& session_;
  ItemTexts items_;
  ItemTexts loaded_items_;
  ItemTexts offered_items_;  // with the choices of a new project
  int changes_ = 0;          // counted ones; changed texts are found by comparison
  bool references_read_ = false;
};

// Opens the form and waits until it is closed.
void ShowProjectData(Session& session);

}  // namespace zeb
