#include "ui/pipe_details_window.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {
namespace {

constexpr int kColumns = 46;
constexpr int kLines = 26;

}  // namespace

PipeDetailsWindow::PipeDetailsWindow(const Ui& ui, PipeDetailsForm& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(ShownText(form.Caption));
  setAttribute(Qt::WA_ShowWithoutActivating);
  auto* text = new QPlainTextEdit;
  text->setObjectName("txtDetails");
  text->setReadOnly(true);
  text->setFont(FixedPitchFont());
  text->setLineWrapMode(QPlainTextEdit::NoWrap);
  text->setToolTip(ShownText(form.Help));
  OnRefresh([&form, text] { text->setPlainText(ShownText(form.Details)); });
  auto* buttons = new QDialogButtonBox(this);
  QPushButton& next = AddButton(*buttons, "cmdNext", tr("&Next"), QDialogButtonBox::ActionRole,
                                tr("The pipe with the next number"));
  QPushButton& previous = AddButton(*buttons, "cmdPrevious", tr("&Previous"),
                                    QDialogButtonBox::ActionRole, tr("The pipe before"));
  QPushButton& upstream = AddButton(*buttons, "cmdUpStream", tr("&Up stream"),
                                    QDialogButtonBox::ActionRole, tr("The pipe that feeds it"));
  OnClick(next, "cmdNext_Click", [&form] { form.cmdNext_Click(); });
  OnClick(previous, "cmdPrevious_Click", [&form] { form.cmdPrevious_Click(); });
  OnClick(upstream, "cmdUpStream_Click", [&form] { form.cmdUpStream_Click(); });
  OnRefresh([&] {
    next.setVisible(form.NextVisible);
    previous.setVisible(form.PreviousVisible);
    upstream.setVisible(form.UpStreamVisible);
  });
  OnDismiss("Form_KeyPress", [&form] { form.KeyEscape(); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(text);
  layout->addWidget(buttons);
  const QFontMetrics metrics(text->font());
  resize(metrics.horizontalAdvance('0') * kColumns + 40, metrics.height() * kLines + 60);
}

}  // namespace zeb
