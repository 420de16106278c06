#pragma once

#include "calc/sizing_form.h"
#include "ui/form_dialog.h"

class QLayout;

namespace zeb {

// How unsized pipes are to be sized, frmCalcAutoSize.
class SizingDialog final : public FormDialog {
  Q_OBJECT

 public:
  SizingDialog(const Ui& ui, SizingForm& form, QWidget* parent);

 private:
  [[nodiscard]] QLayout* Methods(SizingForm& form);
  [[nodiscard]] QLayout* Information(SizingForm& form);
};

}  // namespace zeb
