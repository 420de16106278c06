#include "ui/calc_options_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {
namespace {

constexpr std::size_t kNodeField = 3;

struct LimitField {
  const char* label;
  const char* tip;
};

constexpr std::array<LimitField, 3> kLimits{
    {{"M&inimum velocity (m/s)", "Pipes at or below this velocity are listed"},
     {"M&aximum velocity (m/s)", "Pipes at or above this velocity are listed"},
     {"Maximum pressure &drop (bar)", "Pipes with this pressure drop or more are listed"}}};

QGroupBox* Group(const QString& title, QLayout* layout) {
  auto* group = new QGroupBox(title);
  group->setLayout(layout);
  return group;
}

}  // namespace

CalcOptionsDialog::CalcOptionsDialog(const Ui& ui, CalcOptionsForm& form, QWidget* parent)
    : FormDialog(ui, form, parent) {
  setWindowTitle(ShownText(form.Caption));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(Group(tr("System"), SupplyAndArea(form)));
  layout->addWidget(Group(tr("Limits for the lists of results"), Limits(form)));
  layout->addWidget(Group(tr("Most remote head"), RemoteHead(form)));
  layout->addLayout(Flags(form));
  auto* buttons = new QDialogButtonBox(this);
  OnClick(AddButton(*buttons, "OK", tr("&OK"), QDialogButtonBox::AcceptRole), "OK_Click",
          [&form] { form.OK_Click(); });
  OnClick(AddButton(*buttons, "Cancel", tr("&Cancel"), QDialogButtonBox::RejectRole),
          "Cancel_Click", [&form] { form.Cancel_Click(); });
  OnDismiss("Cancel_Click", [&form] { form.Cancel_Click(); });
  layout->addStretch();
  layout->addWidget(buttons);
}

QLayout* CalcOptionsDialog::SupplyAndArea(CalcOptionsForm& form) {
  auto* rows = new QFormLayout;
  auto* supply = new QComboBox;
  supply->setObjectName("ComWaterSupply");
  Bind(*supply, form.ComWaterSupply, [&form] { return form.ComWaterSupplyList; });
  rows->addRow(tr("Water &supply / pump"), supply);
  auto* density = NewTextLabel("lblDensity");
  Show(*density, form.lblDensity);
  rows->addRow(tr("Density"), density);
  auto* area = NewTextLabel("lblDesignArea");
  OnRefresh([this, &form, area] {
    const QString note = form.lblAreaNote.empty() ? "" : "  " + ShownText(form.lblAreaNote);
    area->setText(ShownText(form.lblDesignArea) + note);
    QPalette colours = palette();
    if (form.DesignAreaRed)
      colours.setColor(QPalette::WindowText, colours.color(QPalette::BrightText));
    area->setPalette(colours);
  });
  rows->addRow(tr("Design area"), area);
  return rows;
}

QLayout* CalcOptionsDialog::Limits(CalcOptionsForm& form) {
  auto* rows = new QFormLayout;
  for (std::size_t index = 0; index < kLimits.size(); ++index)
    rows->addRow(tr(kLimits[index].label), NumberField(form, index, tr(kLimits[index].tip)));
  return rows;
}

QLineEdit* CalcOptionsDialog::NumberField(CalcOptionsForm& form, std::size_t index,
                                          const QString& tip) {
  const std::string name = "ot" + std::to_string(index);
  QLineEdit* field = NewField(name.c_str(), 8, tip);
  field->setMaximumWidth(field->minimumWidth());
  Bind(*field, form.ot.at(index));
  MapTyped(*field, form.ot.at(index), [&form](char key) { return form.ot_KeyPress(key); });
  return field;
}

QLayout* CalcOptionsDialog::RemoteHead(CalcOptionsForm& form) {
  auto* column = new QVBoxLayout;
  auto* find = new QCheckBox(tr("Allow ZEB to &find the most remote head"));
  find->setObjectName("chkFind_MRH");
  Bind(*find, form.chkFind_MRH);
  OnClick(*find, "chkFind_MRH_Click", [&form] { form.chkFind_MRH_Click(); });
  auto* none = new QCheckBox(tr("MRH is not &required"));
  none->setObjectName("chkNo_MRH");
  Bind(*none, form.chkNo_MRH);
  OnClick(*none, "chkNo_MRH_Click", [&form] { form.chkNo_MRH_Click(); });
  QLineEdit* node = NumberField(form, kNodeField, tr("The end node of a head"));
  Enable(*node, form.NodeEnabled);
  auto* label = new QLabel(tr("Use this &node number for MRH "));
  label->setBuddy(node);
  Enable(*label, form.NodeEnabled);
  auto* row = new QHBoxLayout;
  row->addWidget(label);
  row->addWidget(node);
  row->addStretch();
  column->addWidget(find);
  column->addWidget(none);
  column->addLayout(row);
  return column;
}

QLayout* CalcOptionsDialog::Flags(CalcOptionsForm& form) {
  auto* rows = new QFormLayout;
  auto* part_save = new QCheckBox(tr("&Part Save"));
  part_save->setObjectName("chkPartSave");
  part_save->setToolTip(tr("Offers to save a project with the operating heads only"));
  Bind(*part_save, form.chkPartSave);
  auto* calc_source = new QCheckBox(tr("Calc Source"));
  calc_source->setObjectName("chkCalcSource");
  calc_source->setToolTip(tr("The duty that the heads ask of the source is worked out first"));
  calc_source->setEnabled(false);
  Bind(*calc_source, form.chkCalcSource);
  auto* flags = new QHBoxLayout;
  flags->addWidget(part_save);
  flags->addWidget(calc_source);
  flags->addStretch();
  rows->addRow(flags);
  QLineEdit* comment =
      NewField("txtComment", 40, tr("May set the length of a mechanical joint, VJ=0.3, or RF=0.7"));
  Bind(*comment, form.txtComment);
  rows->addRow(tr("Report Co&mment "), comment);
  return rows;
}

}  // namespace zeb
