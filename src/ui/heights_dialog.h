#pragma once

#include "ui/form_dialog.h"
#include "view/height_limits_form.h"

namespace zeb {

// The heights that elevations and isometrics show, ZEB39.
class HeightsDialog final : public FormDialog {
  Q_OBJECT

 public:
  HeightsDialog(const Ui& ui, HeightLimitsForm& form, QWidget* parent);
};

}  // namespace zeb
