#pragma once

#include "calc/limit_list_form.h"
#include "ui/form_dialog.h"

namespace zeb {

// The list of pipes or heads beyond their limits.
class LimitListDialog final : public FormDialog {
  Q_OBJECT

 public:
  LimitListDialog(const Ui& ui, LimitListForm& form, QWidget* parent);
};

}  // namespace zeb
