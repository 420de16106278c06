#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QListWidget>
#include <QVBoxLayout>

#include "ui/dialog_parts.h"
#include "ui/project_data_dialog.h"
#include "ui/shown_text.h"

namespace zeb {

QWidget* ProjectDataDialog::SuppliesPage() {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  auto* row = new QHBoxLayout;
  row->addWidget(SupplyList(), 2);
  row->addWidget(SupplyFields(), 3);
  layout->addLayout(row, 1);
  layout->addWidget(SupplyButtons());
  return page;
}

QListWidget* ProjectDataDialog::SupplyList() {
  auto* list = new QListWidget;
  list->setObjectName("lstSupply");
  connect(list, &QListWidget::currentRowChanged, this, [this](int row) {
    if (row < 0) return;
    Run("lstSupply_Click", [&] { form_.Supplies.lstSupply_Click(row + 1); });
  });
  OnRefresh([this, list] {
    const QSignalBlocker quiet(list);
    list->clear();
    for (const std::string& name : form_.SupplyRows()) list->addItem(ShownText(name));
    list->setCurrentRow(form_.Supplies.SelectedRow() - 1);
    list->setEnabled(form_.CommandsEnabled());
  });
  return list;
}

QWidget* ProjectDataDialog::SupplyFields() {
  auto* part = new QWidget;
  auto* layout = new QVBoxLayout(part);
  auto* rows = new QFormLayout;
  QLineEdit* reference = NewField("txtReference", 26, tr("The name of the supply"));
  Bind(*reference, form_.Supplies.Reference);
  OnLeave(*reference, "et_LostFocus", [this, reference] {
    if (form_.Supplies.Editing() && !form_.Supplies.Reference_LostFocus()) reference->setFocus();
  });
  rows->addRow(tr("Reference"), reference);
  QLineEdit* height = NewField("txtTankHeight", 8);
  Bind(*height, form_.Supplies.TankHeight);
  rows->addRow(tr("Height (m)"), height);
  layout->addLayout(rows);
  layout->addLayout(SupplyPairs());
  layout->addStretch();
  EnableWhile(*part, [this] { return form_.Supplies.Editing(); });
  return part;
}

QGridLayout* ProjectDataDialog::SupplyPairs() {
  auto* grid = new QGridLayout;
  grid->addWidget(new QLabel(tr("Flow (L/min)")), 0, 1);
  grid->addWidget(new QLabel(tr("Pressure (bar)")), 0, 2);
  for (int pair = 0; pair < kSupplyPairs; ++pair) {
    const auto index = static_cast<std::size_t>(pair);
    QLineEdit* flow = NewField(("txtFlow" + std::to_string(pair)).c_str(), 8);
    Bind(*flow, form_.Supplies.Flows.at(index));
    OnLeave(*flow, "et_LostFocus", [this, pair] {
      if (form_.Supplies.Editing()) form_.Supplies.Flow_LostFocus(pair);
    });
    QLineEdit* pressure = NewField(("txtPressure" + std::to_string(pair)).c_str(), 8);
    Bind(*pressure, form_.Supplies.Pressures.at(index));
    OnLeave(*pressure, "et_LostFocus", [this, pair] {
      if (form_.Supplies.Editing()) form_.Supplies.Pressure_LostFocus(pair);
    });
    grid->addWidget(new QLabel(QString::number(pair + 1)), pair + 1, 0);
    grid->addWidget(flow, pair + 1, 1);
    grid->addWidget(pressure, pair + 1, 2);
  }
  return grid;
}

QDialogButtonBox* ProjectDataDialog::SupplyButtons() {
  auto* row = new QDialogButtonBox;
  SupplyEditor& supplies = form_.Supplies;
  const auto idle = [this] { return form_.CommandsEnabled(); };
  AddCommand(*row, "cmdPumpAdd", tr("A&dd"), tr("Makes a new supply"), idle,
             [&supplies] { supplies.cmdPumpAdd_Click(); });
  AddCommand(
      *row, "cmbPumpEdit", tr("&Edit"), tr("Changes the selected supply"),
      [this] { return form_.CommandsEnabled() && form_.Supplies.SelectedRow() > kNoSupplyRow; },
      [&supplies] { supplies.cmbPumpEdit_Click(); });
  AddCommand(
      *row, "cmbPumpSave", tr("S&tore"), tr("Stores the supply"),
      [&supplies] { return supplies.Editing(); }, [&supplies] { supplies.cmbPumpSave_Click(); });
  AddCommand(
      *row, "cmbPumpCancel", tr("&Undo"), tr("Leaves the supply as it was"),
      [&supplies] { return supplies.Editing(); },
      [&supplies] { supplies.lstSupply_Click(supplies.SelectedRow()); });
  return row;
}

}  // namespace zeb
