#pragma once

#include "ui/form_dialog.h"
#include "view/pipe_details_form.h"

namespace zeb {

// The text of a pipe's data, frmViewInfo. It stays beside the main window.
class PipeDetailsWindow final : public FormDialog {
  Q_OBJECT

 public:
  PipeDetailsWindow(const Ui& ui, PipeDetailsForm& form, QWidget* parent);
};

}  // namespace zeb
