#include "ui/warning_box.h"

#include <QDialogButtonBox>
#include <QFontDatabase>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/shown_text.h"

namespace zeb {
namespace {

constexpr int kColumns = 76;

struct Frame {
  const char* name;
  std::string WarningForm::*text;
};

constexpr std::array<Frame, 4> kFrames{{{"Location", &WarningForm::Location},
                                        {"Problem", &WarningForm::Problem},
                                        {"Reason", &WarningForm::Reason},
                                        {"Correction", &WarningForm::Correction}}};

}  // namespace

WarningBox::WarningBox(const Ui& ui, WarningForm& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(ShownText(form.Caption));
  auto* layout = new QVBoxLayout(this);
  for (const Frame& frame : kFrames) {
    auto* group = new QGroupBox(tr(frame.name), this);
    group->setObjectName(frame.name);
    auto* label = new QLabel(group);
    label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    label->setWordWrap(true);
    label->setMinimumWidth(label->fontMetrics().horizontalAdvance('0') * kColumns);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    (new QVBoxLayout(group))->addWidget(label);
    layout->addWidget(group);
    Show(*label, form.*frame.text);
  }
  auto* buttons = new QDialogButtonBox(this);
  auto* go_on = buttons->addButton(tr("&OK"), QDialogButtonBox::AcceptRole);
  auto* stop = buttons->addButton(tr("&Cancel"), QDialogButtonBox::RejectRole);
  go_on->setObjectName("cbut");
  go_on->setToolTip(tr("Goes on with the check"));
  go_on->setDefault(true);
  stop->setObjectName("Canbut");
  stop->setToolTip(tr("Stops the check and opens the project data"));
  layout->addWidget(buttons);
  OnClick(*go_on, "cbut_Click", [&form] { form.cbut_Click(); });
  OnClick(*stop, "Canbut_Click", [&form] { form.Canbut_Click(); });
  OnDismiss("Canbut_Click", [&form] { form.Canbut_Click(); });
}

}  // namespace zeb
