#pragma once

#include <string>
#include <vector>

#include "platform/form.h"
#include "services/session.h"

namespace zeb {

// Stores a version of the lines under UndoDescription and the time, after every change. With
// automatic saving on, every fifth call first saves the project to its own file; a project without
// a file is not saved.
void Revert(Session& session);

// The same for a project that was just read: there is nothing to save.
void StoreUnchangedVersion(Session& session);

// Forgets the versions.
void ClearUndoHistory(Project& project);

// The list of the versions to go back to, oldest first.
class UndoForm : public Form {
 public:
  explicit UndoForm(Session& session);

  [[nodiscard]] std::string_view Name() const override { return "frmUndo"; }

  std::string Caption;
  std::vector<std::string> Rows;
  int Selected = -1;  // a row from 0, -1 without rows
  bool cmbUndoEnabled = false;

  void lstUndo_Click(int row);
  void lstUndo_DblClick(int row);
  void cmbUndo_Click();
  void cmdCancel_Click();

 private:
  Session& session_;
  int first_sequence_ = 1;
};

// The command that shows the list.
void Fundo(Session& session);
// The command that goes back by one version.
void FundoOneStep(Session& session);

}  // namespace zeb
