#include <QFormLayout>
#include <QHBoxLayout>
#include <QListWidget>
#include <QVBoxLayout>

#include "services/text.h"
#include "ui/dialog_parts.h"
#include "ui/project_data_dialog.h"
#include "ui/shown_text.h"

namespace zeb {
namespace {

// The part of a head code line that belongs to it; the rest is the path of its project.
constexpr int kHeadCodeColumns = 32;

struct HeadField {
  const char* name;
  const char* label;
  const char* tip;
  std::string HeadCodeEditor::*text;
};

constexpr std::array<HeadField, 4> kFields{
    {{"txtSize", "Size (mm)", "Orifice", &HeadCodeEditor::Size},
     {"txtKFactor", "K-Factor", "L/min per root bar", &HeadCodeEditor::KFactor},
     {"txtMinPressure", "Min pressure (bar)", "", &HeadCodeEditor::MinPressure},
     {"txtHeadName", "Name", "At most 10 characters", &HeadCodeEditor::HeadName}}};

}  // namespace

QWidget* ProjectDataDialog::HeadCodesPage() {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  auto* heading = new QLabel("No Size mm       K      bar Name");
  heading->setFont(FixedPitchFont());
  heading->setIndent(4);
  layout->addWidget(heading);
  auto* row = new QHBoxLayout;
  row->addWidget(HeadCodeList(), 3);
  row->addWidget(HeadCodeFields(), 2);
  layout->addLayout(row, 1);
  layout->addWidget(HeadCodeButtons());
  return page;
}

QListWidget* ProjectDataDialog::HeadCodeList() {
  auto* list = new QListWidget;
  list->setObjectName("lstHeadCodes");
  list->setFont(FixedPitchFont());
  connect(list, &QListWidget::currentRowChanged, this, [this, list](int row) {
    if (row < 0 || list->signalsBlocked()) return;
    Run("lstHeadCodes_Click", [&] { form_.HeadCodes.lstHeadCodes_Click(row + 1); });
  });
  OnRefresh([this, list] {
    const QSignalBlocker quiet(list);
    list->clear();
    for (const std::string& line : form_.HeadCodeRows())
      list->addItem(ShownText(Left(line, kHeadCodeColumns)));
    list->setCurrentRow(form_.HeadCodes.SelectedPosition() - 1);
    list->setEnabled(form_.CommandsEnabled());
  });
  return list;
}

QWidget* ProjectDataDialog::HeadCodeFields() {
  auto* part = new QWidget;
  auto* rows = new QFormLayout(part);
  for (const HeadField& field : kFields) {
    QLineEdit* edit = NewField(field.name, 10, tr(field.tip));
    Bind(*edit, form_.HeadCodes.*field.text);
    EnableWhile(*edit, [this] { return form_.HeadCodes.Editing(); });
    rows->addRow(tr(field.label), edit);
  }
  auto* buttons = new QDialogButtonBox;
  const auto editing = [this] { return form_.HeadCodes.Editing(); };
  AddCommand(*buttons, "cmdApplyHeadCode", tr("S&tore"), tr("Stores the head code"), editing,
             [this] { form_.HeadCodes.cmdApplyHeadCode_Click(); });
  AddCommand(*buttons, "cmdCancelHeadCode", tr("&Undo"), tr("Leaves the head code as it was"),
             editing, [this] { form_.HeadCodes.cmdCancelHeadCode_Click(); });
  rows->addRow(buttons);
  return part;
}

QDialogButtonBox* ProjectDataDialog::HeadCodeButtons() {
  auto* row = new QDialogButtonBox;
  const auto idle = [this] { return form_.CommandsEnabled(); };
  const auto selected = [this, idle] { return idle() && form_.HeadCodes.SelectedPosition() > 0; };
  HeadCodeEditor& codes = form_.HeadCodes;
  AddCommand(*row, "cmdAddHeadCode", tr("A&dd"), tr("Makes a new head code"), idle,
             [&codes] { codes.cmdAddHeadCode_Click(); });
  AddCommand(*row, "cmdEdit", tr("&Edit"), tr("Changes the selected head code"), selected,
             [&codes] { codes.cmdEdit_Click(); });
  AddCommand(*row, "cmdCompact", tr("Co&mpact"), tr("Removes the head codes that are not used"),
             idle, [this] { form_.cmdCompact_Click(); });
  AddCommand(*row, "cmdLoad", tr("L&oad..."), tr("Appends the head codes of a library"), idle,
             [&codes] { codes.cmdLoad_Click(); });
  AddCommand(*row, "cmdSave", tr("Sa&ve..."), tr("Writes the head codes as a library"), idle,
             [&codes] { codes.cmdSave_Click(); });
  return row;
}

}  // namespace zeb
