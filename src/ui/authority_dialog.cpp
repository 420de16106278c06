#include "ui/authority_dialog.h"

#include <QHeaderView>
#include <QTableWidget>
#include <QVBoxLayout>

#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {
namespace {

QTableWidget* NewGrid(QWidget* parent) {
  auto* grid = new QTableWidget(0, Auth::kColumnCount, parent);
  grid->setObjectName("MSFlexGrid1");
  QStringList headings;
  for (const std::string_view heading : Auth::kHeadings) headings.append(ShownText(heading));
  grid->setHorizontalHeaderLabels(headings);
  grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  grid->verticalHeader()->hide();
  grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
  grid->setSelectionBehavior(QAbstractItemView::SelectRows);
  grid->setSelectionMode(QAbstractItemView::SingleSelection);
  grid->setToolTip(
      QObject::tr("A click shows or hides an authority, a double click makes it the "
                  "default"));
  return grid;
}

void FillGrid(QTableWidget& grid, const Auth& form) {
  grid.setRowCount(static_cast<int>(form.Rows().size()));
  for (int row = 0; row < grid.rowCount(); ++row) {
    for (int column = 0; column < Auth::kColumnCount; ++column) {
      const auto& cells = form.Rows().at(static_cast<std::size_t>(row));
      auto* cell = new QTableWidgetItem(ShownText(cells.at(static_cast<std::size_t>(column))));
      if (column > 0) cell->setTextAlignment(Qt::AlignCenter);
      grid.setItem(row, column, cell);
    }
  }
}

}  // namespace

AuthorityDialog::AuthorityDialog(const Ui& ui, Auth& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(tr("Design Authority"));
  setSizeGripEnabled(true);
  QTableWidget* grid = NewGrid(this);
  OnRefresh([&form, grid] { FillGrid(*grid, form); });
  connect(grid, &QTableWidget::cellClicked, this, [this, &form](int row) {
    Run("MSFlexGrid1_Click", [&] { form.MSFlexGrid1_Click(row); });
  });
  connect(grid, &QTableWidget::cellDoubleClicked, this, [this, &form](int row) {
    Run("MSFlexGrid1_DblClick", [&] { form.MSFlexGrid1_DblClick(row); });
  });
  auto* buttons = new QDialogButtonBox(this);
  const auto on_row = [grid](void (Auth::*act)(int), Auth& auth) {
    if (grid->currentRow() >= 0) (auth.*act)(grid->currentRow());
  };
  OnClick(AddButton(*buttons, "cmdShow", tr("&Show / hide"), QDialogButtonBox::ActionRole),
          "MSFlexGrid1_Click", [&form, on_row] { on_row(&Auth::MSFlexGrid1_Click, form); });
  OnClick(AddButton(*buttons, "cmdDefault", tr("Make &default"), QDialogButtonBox::ActionRole),
          "MSFlexGrid1_DblClick", [&form, on_row] { on_row(&Auth::MSFlexGrid1_DblClick, form); });
  OnClick(AddButton(*buttons, "cmdClose", tr("&Close"), QDialogButtonBox::AcceptRole),
          "cmdClose_Click", [this] { Finish(); });
  OnDismiss("cmdClose_Click", [this] { Finish(); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(grid);
  layout->addWidget(buttons);
  resize(560, 420);
}

}  // namespace zeb
