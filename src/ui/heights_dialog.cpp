#include "ui/heights_dialog.h"

#include <QFormLayout>
#include <QVBoxLayout>

#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {

HeightsDialog::HeightsDialog(const Ui& ui, HeightLimitsForm& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(ShownText(form.Caption));
  auto* message = NewTextLabel("lblMessage");
  message->setWordWrap(true);
  message->setMinimumWidth(420);
  Show(*message, form.Message);
  auto* rows = new QFormLayout;
  QLineEdit* lowest = NewField("txtMinHeight", 8);
  Bind(*lowest, form.MinHeight);
  rows->addRow(tr("Mi&nimum height (m)"), lowest);
  QLineEdit* highest = NewField("txtMaxHeight", 8);
  Bind(*highest, form.MaxHeight);
  rows->addRow(tr("Ma&ximum height (m)"), highest);
  auto* buttons = new QDialogButtonBox(this);
  OnClick(AddButton(*buttons, "cmdOK", tr("&OK"), QDialogButtonBox::AcceptRole), "cmdOK_Click",
          [&form] { form.cmdOK_Click(); });
  OnClick(AddButton(*buttons, "cmdCancel", tr("&Cancel"), QDialogButtonBox::RejectRole,
                    tr("Shows all pipes")),
          "cmdCancel_Click", [&form] { form.cmdCancel_Click(); });
  OnDismiss("cmdCancel_Click", [&form] { form.cmdCancel_Click(); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(message);
  layout->addLayout(rows);
  layout->addWidget(buttons);
  lowest->setFocus();
}

}  // namespace zeb
