#include "ui/pipe_inspector_window.h"

#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "ui/shown_text.h"

namespace zeb {

PipeInspectorWindow::PipeInspectorWindow(const Ui& ui, PipeInspectorForm& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(tr("Pipe properties"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  auto* list = new QTreeWidget(this);
  list->setObjectName("lstInspector");
  list->setHeaderLabels({tr("Item"), tr("Value"), tr("Units")});
  list->setRootIsDecorated(false);
  list->setAlternatingRowColors(true);
  list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  OnRefresh([&form, list] {
    list->clear();
    for (const PipeProperty& row : form.Rows)
      new QTreeWidgetItem(list, {ShownText(row.item), ShownText(row.value), ShownText(row.units)});
  });
  OnDismiss("Form_Unload", [this, &form] {
    TheSession().platform.shell.Close(form);
    form.Form_Unload();
  });
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(list);
  resize(330, 420);
}

}  // namespace zeb
