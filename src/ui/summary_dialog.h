#pragma once

#include "check/summary_form.h"
#include "ui/form_dialog.h"

class QDialogButtonBox;

namespace zeb {

// The summary of a check or of a calculation.
class SummaryDialog final : public FormDialog {
  Q_OBJECT

 public:
  SummaryDialog(const Ui& ui, SummaryForm& form, QWidget* parent);

 private:
  void AddCalculationButtons(QDialogButtonBox& buttons, SummaryForm& form);
};

}  // namespace zeb
