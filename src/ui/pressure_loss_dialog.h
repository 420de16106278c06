#pragma once

#include "project/pressure_loss_form.h"
#include "ui/form_dialog.h"

namespace zeb {

// The pressure loss equation, frmPLF.
class PressureLossDialog final : public FormDialog {
  Q_OBJECT

 public:
  PressureLossDialog(const Ui& ui, PressureLossForm& form, QWidget* parent);
};

}  // namespace zeb
