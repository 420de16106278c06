#include "ui/options_dialog.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QFontComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "paint/code_page.h"
#include "paint/painter_surface.h"
#include "services/number_text.h"
#include "ui/dialog_parts.h"
#include "ui/shown_text.h"

namespace zeb {
namespace {

QColor ColourOf(const std::string& number) {
  return ToQt(Colour{static_cast<std::uint32_t>(Val(number))});
}

std::string NumberOf(const QColor& colour) {
  return PlainText(colour.blue() << 16 | colour.green() << 8 | colour.red());
}

}  // namespace

OptionsDialog::OptionsDialog(const Ui& ui, OptionsForm& form, QWidget* parent)
    : FormDialog(ui, form, parent), form_(form) {
  setWindowTitle(ShownText(form.Caption));
  auto* columns = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  left->addWidget(NewProjects());
  left->addWidget(Work());
  left->addStretch();
  columns->addLayout(left);
  columns->addWidget(Drawing(), 0, Qt::AlignTop);
  auto* buttons = new QDialogButtonBox(this);
  OnClick(AddButton(*buttons, "cmdOK", tr("&OK"), QDialogButtonBox::AcceptRole), "cmdOK_Click",
          [this] { form_.cmdOK_Click(); });
  OnClick(AddButton(*buttons, "cmdCancel", tr("&Cancel"), QDialogButtonBox::RejectRole),
          "cmdCancel_Click", [this] { form_.cmdCancel_Click(); });
  OnDismiss("cmdCancel_Click", [this] { form_.cmdCancel_Click(); });
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(columns);
  layout->addWidget(buttons);
}

QGroupBox* OptionsDialog::NewProjects() {
  auto* group = new QGroupBox(tr("New projects"));
  auto* rows = new QFormLayout(group);
  AddList(*rows, "ComPDT", tr("&Pipe data"), form_.PipeData,
          [this] { return form_.PipeDataFiles(); });
  AddList(*rows, "ComDesignAth", tr("Design &authority"), form_.Authority,
          [this] { return form_.Authorities(); });
  AddList(*rows, "ComPLE", tr("Pressure loss &equation"), form_.Equation, &OptionsForm::Equations);
  AddList(*rows, "ComWaterTemp", tr("Water &temperature (C)"), form_.WaterTemp,
          &OptionsForm::Temperatures);
  AddList(*rows, "ComHCL", tr("&Head code library"), form_.HeadCodes,
          [this] { return form_.HeadCodeLibraries(); });
  OnPick(*group->findChild<QComboBox*>("ComPLE"), "ComPLE_Click", [this] { form_.ComPLE_Click(); });
  Enable(*group->findChild<QComboBox*>("ComWaterTemp"), form_.WaterTempEnabled);
  return group;
}

QGroupBox* OptionsDialog::Drawing() {
  auto* group = new QGroupBox(tr("Drawing and window"));
  auto* rows = new QFormLayout(group);
  AddFont(*rows);
  QLineEdit* size = NewField("txtFontSize", 4);
  Bind(*size, form_.FontSize);
  rows->addRow(tr("Text &size"), size);
  AddFlag(*rows, "chkFontBold", tr("&Bold"), form_.FontBold);
  AddFlag(*rows, "chkFontItalic", tr("&Italic"), form_.FontItalic);
  AddColour(*rows);
  AddList(*rows, "ComBackground", tr("Back&ground"), form_.Background, &OptionsForm::Backgrounds);
  AddList(*rows, "ComTheme", tr("Window c&olours"), form_.Theme, &OptionsForm::Themes);
  return group;
}

QGroupBox* OptionsDialog::Work() {
  auto* group = new QGroupBox(tr("Work"));
  auto* rows = new QFormLayout(group);
  AddFolder(*rows);
  AddFlag(*rows, "chkAutoNode", tr("&Number new nodes automatically"), form_.AutoNode);
  QLineEdit* step = NewField("txtNodeStep", 6);
  Bind(*step, form_.NodeStep);
  rows->addRow(tr("Node ste&p"), step);
  AddFlag(*rows, "chkAutoSave", tr("Sa&ve automatically, every fifth change"), form_.AutoSave);
  return group;
}

void OptionsDialog::AddList(QFormLayout& rows, const char* name, const QString& label,
                            std::string& text, const Entries& entries) {
  auto* list = new QComboBox;
  list->setObjectName(name);
  Bind(*list, text, entries);
  rows.addRow(label, list);
}

void OptionsDialog::AddFlag(QFormLayout& rows, const char* name, const QString& label, bool& flag) {
  auto* box = new QCheckBox(label);
  box->setObjectName(name);
  Bind(*box, flag);
  rows.addRow(box);
}

void OptionsDialog::AddFont(QFormLayout& rows) {
  auto* fonts = new QFontComboBox;
  fonts->setObjectName("ComFontName");
  fonts->setEditable(false);
  connect(fonts, &QComboBox::activated, this,
          [this, fonts] { form_.FontName = FromQt(fonts->currentText()); });
  OnRefresh([this, fonts] { fonts->setCurrentFont(QFont(ToQt(form_.FontName))); });
  rows.addRow(tr("Text &font"), fonts);
}

void OptionsDialog::AddColour(QFormLayout& rows) {
  auto* button = new QPushButton;
  button->setObjectName("cmdTextColour");
  button->setAutoDefault(false);
  OnClick(*button, "cmdTextColour_Click", [this] { PickColour(); });
  OnRefresh([this, button] {
    QPixmap sample(32, 14);
    sample.fill(ColourOf(form_.TextColour));
    button->setIcon(sample);
    button->setText(ColourOf(form_.TextColour).name());
  });
  rows.addRow(tr("Text &colour"), button);
}

void OptionsDialog::AddFolder(QFormLayout& rows) {
  auto* row = new QHBoxLayout;
  QLineEdit* folder = NewField("txtPdtFolder", 24);
  folder->setReadOnly(true);
  OnRefresh([this, folder] { folder->setText(PathToQt(form_.PdtFolder)); });
  auto* browse = new QPushButton(tr("B&rowse..."));
  browse->setObjectName("cmdPdtFolder");
  browse->setAutoDefault(false);
  OnClick(*browse, "cmdPdtFolder_Click", [this] { PickFolder(); });
  row->addWidget(folder);
  row->addWidget(browse);
  rows.addRow(tr("Folder of pipe data"), row);
}

void OptionsDialog::PickColour() {
  const QColor colour = QColorDialog::getColor(ColourOf(form_.TextColour), this, tr("Text colour"));
  if (colour.isValid()) form_.TextColour = NumberOf(colour);
}

void OptionsDialog::PickFolder() {
  const QString folder =
      QFileDialog::getExistingDirectory(this, tr("Folder of pipe data"), PathToQt(form_.PdtFolder));
  if (!folder.isEmpty()) form_.PdtFolder = PathFromQt(folder);
}

}  // namespace zeb
