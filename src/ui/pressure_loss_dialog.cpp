#include "ui/pressure_loss_dialog.h"

#include <QComboBox>
#include <QFormLayout>
#include <QVBoxLayout>

#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {

PressureLossDialog::PressureLossDialog(const Ui& ui, PressureLossForm& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(ShownText(form.Caption));
  auto* rows = new QFormLayout;
  auto* equation = new QComboBox;
  equation->setObjectName("ComPLE");
  Bind(*equation, form.ComPLE, &PressureLossForm::Equations);
  OnPick(*equation, "ComPLE_Click", [&form] { form.ComPLE_Click(); });
  rows->addRow(tr("&Equation"), equation);
  auto* temperature = new QComboBox;
  temperature->setObjectName("ComWaterTemp");
  Bind(*temperature, form.ComWaterTemp, &PressureLossForm::Temperatures);
  OnPick(*temperature, "ComWaterTemp_Click", [&form] { form.ComWaterTemp_Click(); });
  Enable(*temperature, form.WaterTempEnabled);
  rows->addRow(tr("Water &Temp (C)"), temperature);
  QLineEdit* density = NewField("txtDensity", 10);
  Bind(*density, form.txtDensity);
  rows->addRow(tr("&Density (Kg/m3)"), density);
  QLineEdit* viscosity = NewField("txtViscosity", 10, tr("Centipoise"));
  Bind(*viscosity, form.txtViscosity);
  rows->addRow(tr("&Viscosity"), viscosity);
  OnRefresh([&form, density, viscosity] {
    const bool darcy = form.ComPLE == PressureLossForm::Equations().back();
    density->setEnabled(darcy);
    viscosity->setEnabled(darcy);
  });
  auto* buttons = new QDialogButtonBox(this);
  OnClick(AddButton(*buttons, "cmdOK", tr("&OK"), QDialogButtonBox::AcceptRole), "cmdOK_Click",
          [&form] { form.cmdOK_Click(); });
  OnClick(AddButton(*buttons, "cmdCancel", tr("&Cancel"), QDialogButtonBox::RejectRole),
          "cmdCancel_Click", [&form] { form.cmdCancel_Click(); });
  OnDismiss("cmdCancel_Click", [&form] { form.cmdCancel_Click(); });
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(rows);
  layout->addWidget(buttons);
}

}  // namespace zeb
