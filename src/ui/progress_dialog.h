#pragma once

#include "calc/progress_form.h"
#include "ui/form_dialog.h"

namespace zeb {

// The window beside a running calculation, with its Stop button.
class ProgressDialog final : public FormDialog {
  Q_OBJECT

 public:
  ProgressDialog(const Ui& ui, ProgressForm& form, QWidget* parent);
};

}  // namespace zeb
