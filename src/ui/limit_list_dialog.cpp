#include "ui/limit_list_dialog.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {
namespace {

constexpr int kColumns = 62;
constexpr int kLines = 20;

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += (text.empty() ? "" : "\r\n") + line;
  return text;
}

QPlainTextEdit* NewList(const std::string& rows) {
  auto* list = new QPlainTextEdit;
  list->setObjectName("txtList");
  list->setReadOnly(true);
  list->setFont(FixedPitchFont());
  list->setLineWrapMode(QPlainTextEdit::NoWrap);
  list->setPlainText(ShownText(rows));
  return list;
}

}  // namespace

LimitListDialog::LimitListDialog(const Ui& ui, LimitListForm& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(ShownText(form.Caption));
  setSizeGripEnabled(true);
  auto* layout = new QVBoxLayout(this);
  auto* title = NewTextLabel("lblTitle");
  Show(*title, form.Title);
  auto* header = NewTextLabel("lblHeader");
  QFont bold = header->font();
  bold.setBold(true);
  header->setFont(bold);
  Show(*header, form.Header);
  auto* columns = NewTextLabel("lblColumns");
  columns->setFont(FixedPitchFont());
  columns->setText(ShownText(Joined(form.Columns)));
  QPlainTextEdit* list = NewList(form.Rows);
  // The rows stand below their headings.
  columns->setIndent(static_cast<int>(list->document()->documentMargin()) + list->frameWidth());
  auto* foot = NewTextLabel("lblFoot");
  Show(*foot, form.Foot);
  auto* buttons = new QDialogButtonBox(this);
  OnClick(AddButton(*buttons, "cmdOK", tr("&OK"), QDialogButtonBox::AcceptRole), "cmdOK_Click",
          [&form] { form.cmdOK_Click(); });
  OnDismiss("cmdOK_Click", [&form] { form.cmdOK_Click(); });
  for (QWidget* part : std::initializer_list<QWidget*>{title, header, columns, list, foot, buttons})
    layout->addWidget(part);
  const QFontMetrics metrics(list->font());
  resize(metrics.horizontalAdvance('0') * kColumns + 40, metrics.height() * kLines + 120);
}

}  // namespace zeb
