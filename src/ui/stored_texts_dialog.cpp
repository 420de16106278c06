#include "ui/stored_texts_dialog.h"

#include <QGroupBox>
#include <QListWidget>
#include <QVBoxLayout>

#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {

StoredTextsDialog::StoredTextsDialog(const Ui& ui, ResetReferencesForm& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(ShownText(form.Caption));
  auto* layout = new QVBoxLayout(this);
  auto* frame = new QGroupBox(this);
  auto* list = new QListWidget;
  list->setObjectName("lstReferences");
  list->setAccessibleName(tr("Stored texts"));
  (new QVBoxLayout(frame))->addWidget(list);
  OnRefresh([&form, frame, list] {
    frame->setTitle(ShownText(form.FrameCaption));
    list->clear();
    for (const std::string& row : form.Rows()) list->addItem(ShownText(row));
  });
  auto* buttons = new QDialogButtonBox(this);
  OnClick(
      AddButton(*buttons, "Command2", tr("&Remove all but the last"), QDialogButtonBox::ActionRole),
      "Command2_Click", [&form] { form.Command2_Click(); });
  OnClick(AddButton(*buttons, "Command1", tr("&Save list"), QDialogButtonBox::ActionRole,
                    tr("Writes the lists without what was removed")),
          "Command1_Click", [&form] { form.Command1_Click(); });
  QPushButton& close = AddButton(*buttons, "cmdClose", tr("&Close"), QDialogButtonBox::RejectRole);
  OnClick(close, "cmdClose_Click", [this] { Finish(); });
  OnDismiss("cmdClose_Click", [this] { Finish(); });
  layout->addWidget(frame);
  layout->addWidget(buttons);
}

}  // namespace zeb
