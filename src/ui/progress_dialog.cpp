#include "ui/progress_dialog.h"

#include <QProgressBar>
#include <QVBoxLayout>

#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {

ProgressDialog::ProgressDialog(const Ui& ui, ProgressForm& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(ShownText(ProgressForm::Title()));
  // Only this window answers while the calculation runs.
  setWindowModality(Qt::ApplicationModal);
  setMinimumWidth(380);
  auto* layout = new QVBoxLayout(this);
  auto* message = NewTextLabel("lblMessage");
  OnRefresh([&form, message] { message->setText(ShownText(form.Message())); });
  auto* bar = new QProgressBar(this);
  bar->setRange(0, 0);
  bar->setTextVisible(false);
  auto* buttons = new QDialogButtonBox(this);
  QPushButton& stop = AddButton(*buttons, "cmdStop", tr("&Stop"), QDialogButtonBox::RejectRole,
                                tr("Ends the calculation without a result"));
  OnClick(stop, "cmdStop_Click", [&form] { form.cmdStop_Click(); });
  OnDismiss("cmdStop_Click", [&form] { form.cmdStop_Click(); });
  layout->addWidget(message);
  layout->addWidget(bar);
  layout->addWidget(buttons);
}

}  // namespace zeb
