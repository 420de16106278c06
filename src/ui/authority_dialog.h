#pragma once

#include "services/authority_form.h"
#include "ui/form_dialog.h"

namespace zeb {

// Which design authorities are offered, and the default one.
class AuthorityDialog final : public FormDialog {
  Q_OBJECT

 public:
  AuthorityDialog(const Ui& ui, Auth& form, QWidget* parent);
};

}  // namespace zeb
