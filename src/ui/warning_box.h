#pragma once

#include "project/fault_report.h"
#include "ui/form_dialog.h"

namespace zeb {

// The warning box ZEBF04: four frames, and whether to go on or to stop.
class WarningBox final : public FormDialog {
  Q_OBJECT

 public:
  WarningBox(const Ui& ui, WarningForm& form, QWidget* parent);
};

}  // namespace zeb
