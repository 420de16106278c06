#pragma once

#include "calc/calc_options_form.h"
#include "ui/form_dialog.h"

class QGridLayout;
class QLayout;

namespace zeb {

// The options of a calculation, frmCalc.
class CalcOptionsDialog final : public FormDialog {
  Q_OBJECT

 public:
  CalcOptionsDialog(const Ui& ui, CalcOptionsForm& form, QWidget* parent);

 private:
  [[nodiscard]] QLayout* SupplyAndArea(CalcOptionsForm& form);
  [[nodiscard]] QLayout* Limits(CalcOptionsForm& form);
  [[nodiscard]] QLayout* RemoteHead(CalcOptionsForm& form);
  [[nodiscard]] QLayout* Flags(CalcOptionsForm& form);
  [[nodiscard]] QLineEdit* NumberField(CalcOptionsForm& form, std::size_t index,
                                       const QString& tip);
};

}  // namespace zeb
