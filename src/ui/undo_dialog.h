#pragma once

#include "project/undo_history.h"
#include "ui/form_dialog.h"

namespace zeb {

// The versions to go back to, frmUndo.
class UndoDialog final : public FormDialog {
  Q_OBJECT

 public:
  UndoDialog(const Ui& ui, UndoForm& form, QWidget* parent);
};

}  // namespace zeb
