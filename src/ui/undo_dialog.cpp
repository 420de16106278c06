#include "ui/undo_dialog.h"

#include <QListWidget>
#include <QVBoxLayout>

#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {

UndoDialog::UndoDialog(const Ui& ui, UndoForm& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(ShownText(form.Caption));
  setSizeGripEnabled(true);
  auto* list = new QListWidget(this);
  list->setObjectName("lstUndo");
  list->setAccessibleName(tr("Versions, the oldest first"));
  for (const std::string& row : form.Rows) list->addItem(ShownText(row));
  list->setCurrentRow(form.Selected);
  list->scrollToBottom();
  connect(list, &QListWidget::currentRowChanged, this,
          [this, &form](int row) { Run("lstUndo_Click", [&] { form.lstUndo_Click(row); }); });
  const auto pick = [this, &form, list] {
    Run("lstUndo_Click", [&] { form.lstUndo_Click(list->currentRow()); });
  };
  connect(list, &QListWidget::itemClicked, this, pick);
  connect(list, &QListWidget::itemActivated, this, pick);
  connect(list, &QListWidget::itemDoubleClicked, this, [this, &form, list] {
    Run("lstUndo_DblClick", [&] { form.lstUndo_DblClick(list->currentRow()); });
  });
  auto* buttons = new QDialogButtonBox(this);
  QPushButton& undo = AddButton(*buttons, "cmbUndo", tr("&Undo"), QDialogButtonBox::AcceptRole,
                                tr("Goes back to the selected version"));
  Enable(undo, form.cmbUndoEnabled);
  OnClick(undo, "cmbUndo_Click", [&form] { form.cmbUndo_Click(); });
  OnClick(AddButton(*buttons, "cmdCancel", tr("&Cancel"), QDialogButtonBox::RejectRole),
          "cmdCancel_Click", [&form] { form.cmdCancel_Click(); });
  OnDismiss("cmdCancel_Click", [&form] { form.cmdCancel_Click(); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(list);
  layout->addWidget(buttons);
  resize(560, 420);
}

}  // namespace zeb
