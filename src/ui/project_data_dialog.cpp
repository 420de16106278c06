#include "ui/project_data_dialog.h"

#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <utility>

#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {

ProjectDataDialog::ProjectDataDialog(const Ui& ui, ProjectDataForm& form, QWidget* parent)
    : FormDialog(ui, form, parent), form_(form) {
  setWindowTitle(ShownText(form.Caption));
  setSizeGripEnabled(true);
  auto* pages = new QTabWidget(this);
  pages->setObjectName("pages");
  pages->addTab(ItemsPage(), tr("&Project"));
  pages->addTab(HeadCodesPage(), tr("&Head codes"));
  pages->addTab(SuppliesPage(), tr("&Water supplies"));
  pages->addTab(TextPage(), tr("Pipe &lines"));
  auto* buttons = new QDialogButtonBox(this);
  QPushButton& apply = AddButton(*buttons, "cmdApply", tr("&Apply"), QDialogButtonBox::AcceptRole,
                                 tr("Stores the project data, saves the project and checks it"));
  OnClick(apply, "cmdApply_Click", [this] { form_.cmdApply_Click(); });
  EnableWhile(apply, [this] { return form_.CommandsEnabled(); });
  OnClick(AddButton(*buttons, "cmdCancel", tr("&Cancel"), QDialogButtonBox::RejectRole,
                    tr("Leaves the project data as they were")),
          "cmdCancel_Click", [this] { form_.cmdCancel_Click(); });
  OnDismiss("Form_QueryUnload", [this] { form_.Form_QueryUnload(); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(pages);
  layout->addWidget(buttons);
  resize(900, 560);
}

QWidget* ProjectDataDialog::TextPage() {
  auto* boxes = new QTabWidget;
  boxes->setObjectName("textBoxes");
  boxes->setTabPosition(QTabWidget::South);
  for (std::size_t index = 0; index < PipeTextBoxes::kBoxes; ++index) {
    auto* box = new QPlainTextEdit;
    box->setObjectName("txtLines" + QString::number(index));
    box->setFont(FixedPitchFont());
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    box->setTabChangesFocus(true);
    Bind(*box, form_.Text.Boxes.at(index));
    boxes->addTab(box, tr("Text %1").arg(index + 1));
  }
  // Most projects fit into the first box.
  boxes->tabBar()->setVisible(!form_.Text.Boxes[1].empty());
  return boxes;
}

void ProjectDataDialog::AddCommand(QDialogButtonBox& row, const char* name, const QString& text,
                                   const QString& tip, std::function<bool()> enabled,
                                   const Event& event) {
  QPushButton& button = AddButton(row, name, text, QDialogButtonBox::ActionRole, tip);
  OnClick(button, std::string(name) + "_Click", event);
  EnableWhile(button, std::move(enabled));
}

void ProjectDataDialog::EnableWhile(QWidget& widget, std::function<bool()> condition) {
  OnRefresh([&widget, condition = std::move(condition)] { widget.setEnabled(condition()); });
}

}  // namespace zeb
