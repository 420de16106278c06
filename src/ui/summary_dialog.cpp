#include "ui/summary_dialog.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "calc/part_save.h"
#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {
namespace {

constexpr int kColumns = 72;
constexpr int kLines = 34;

QPlainTextEdit* NewSummaryText(const std::string& summary) {
  auto* text = new QPlainTextEdit;
  text->setObjectName("txtSummary");
  text->setReadOnly(true);
  text->setFont(FixedPitchFont());
  text->setLineWrapMode(QPlainTextEdit::NoWrap);
  text->setPlainText(ShownText(summary));
  return text;
}

}  // namespace

SummaryDialog::SummaryDialog(const Ui& ui, SummaryForm& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(ShownText(form.Caption));
  setSizeGripEnabled(true);
  auto* layout = new QVBoxLayout(this);
  auto* heading = NewTextLabel("lblHeading");
  QFont bold = heading->font();
  bold.setBold(true);
  bold.setPointSizeF(bold.pointSizeF() * 1.15);
  heading->setFont(bold);
  heading->setWordWrap(true);
  Show(*heading, form.Heading);
  auto* text = NewSummaryText(form.Text);
  auto* buttons = new QDialogButtonBox(this);
  if (form.ShowsCalculationCommands) AddCalculationButtons(*buttons, form);
  QPushButton& ok = AddButton(*buttons, "cmdOK", tr("&OK"), QDialogButtonBox::AcceptRole);
  OnClick(ok, "cmdOK_Click", [&form] { form.cmdOK_Click(); });
  OnDismiss("cmdOK_Click", [&form] { form.cmdOK_Click(); });
  layout->addWidget(heading);
  layout->addWidget(text);
  layout->addWidget(buttons);
  const QFontMetrics metrics(text->font());
  resize(metrics.horizontalAdvance('0') * kColumns + 40, metrics.height() * kLines);
  Run("Form_Load", [&form] { form.Form_Load(); });
}

void SummaryDialog::AddCalculationButtons(QDialogButtonBox& buttons, SummaryForm& form) {
  QPushButton& clip = AddButton(buttons, "cmdClip", tr("&Copy duty"), QDialogButtonBox::ActionRole,
                                tr("Copies the source duty to the clipboard"));
  OnClick(clip, "cmdClip_Click", [&form] { form.cmdClip_Click(); });
  OnClick(AddButton(buttons, "cmdSaveData", tr("&Save heads..."), QDialogButtonBox::ActionRole,
                    tr("Saves a project that holds only the operating heads")),
          "cmdSaveData_Click", [this] { SavePartProject(TheSession()); });
  OnRefresh([&] {
    if (!form.ClipTip.empty()) clip.setToolTip(ShownText(form.ClipTip));
  });
}

}  // namespace zeb
