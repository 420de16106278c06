#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <array>

#include "paint/code_page.h"
#include "project/project_items.h"
#include "ui/dialog_parts.h"
#include "ui/project_data_dialog.h"
#include "ui/shown_text.h"

namespace zeb {
namespace {

// The page's two columns.
constexpr std::array<std::array<Item, 8>, 2> kColumns{
    {{Item::kProjectName, Item::kAddress, Item::kProjectNumber, Item::kDesigner, Item::kInsurer,
      Item::kDrawing, Item::kIssue, Item::kInstallation},
     {Item::kAuthority, Item::kFluid, Item::kWeldSize, Item::kPipeData, Item::kHazard,
      Item::kDensity, Item::kDesignArea, Item::kAreaReference}}};

struct ItemTip {
  Item item;
  const char* tip;
};

constexpr std::array<ItemTip, 3> kTips{
    {{Item::kFluid, "Specify fluid type WATER, FOAM, DRY (NFPA only) or NFPA 750"},
     {Item::kInstallation, "May also hold option codes: -LC +WR -AC -FC -SH PEND"},
     {Item::kComments, "May also hold -EP, VJ=, RF="}}};

QString TipOf(Item item) {
  for (const ItemTip& row : kTips)
    if (row.item == item) return row.tip;
  return {};
}

// "Project name" of " 1] Project name          : ".
QString LabelOf(Item item) {
  const QString label = ToQt(ItemOf(item).label);
  const QString unit = ToQt(ItemOf(item).label_end).trimmed();
  const QString name = label.section("] ", 1).section(':', 0, 0).trimmed();
  return unit.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, unit);
}

QString ObjectName(Item item) { return QStringLiteral("et%1").arg(static_cast<int>(item)); }

bool IsPickedFromList(Item item) { return item == Item::kAuthority || item == Item::kPipeData; }

}  // namespace

QWidget* ProjectDataDialog::ItemsPage() {
  auto* page = new QWidget;
  auto* grid = new QGridLayout(page);
  for (int column = 0; column < 2; ++column) {
    int row = 0;
    for (const Item item : kColumns.at(static_cast<std::size_t>(column)))
      AddItem(*grid, row++, 4 * column, item);
    grid->setColumnStretch(4 * column + 1, 1);
  }
  grid->setColumnMinimumWidth(3, 16);
  const int last = static_cast<int>(kColumns[0].size());
  AddItem(*grid, last, 0, Item::kComments);
  AddItem(*grid, last, 4, Item::kSupply);
  grid->addWidget(StoredTextsButton(), last + 2, 0, 1, 2, Qt::AlignLeft);
  grid->setRowStretch(last + 1, 1);
  return page;
}

void ProjectDataDialog::AddItem(QGridLayout& grid, int row, int column, Item item) {
  QWidget* field = item == Item::kSupply ? SupplyField() : ItemField(item);
  field->setToolTip(TipOf(item));
  auto* label = new QLabel(LabelOf(item));
  label->setBuddy(field);
  grid.addWidget(label, row, column);
  QPushButton* button = ItemButton(item);
  grid.addWidget(field, row, column + 1, 1, button == nullptr ? 2 : 1);
  if (button != nullptr) grid.addWidget(button, row, column + 2);
}

QWidget* ProjectDataDialog::ItemField(Item item) {
  if (item == Item::kComments) {
    auto* field = new QLineEdit;
    field->setObjectName(ObjectName(item));
    Bind(*field, form_.Field(item));
    return field;
  }
  auto* field = new QComboBox;
  field->setObjectName(ObjectName(item));
  field->setEditable(!IsPickedFromList(item));
  field->setInsertPolicy(QComboBox::NoInsert);
  field->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  field->setMinimumContentsLength(14);
  Bind(*field, form_.Field(item), [this, item] { return form_.ListOf(item); });
  return field;
}

QWidget* ProjectDataDialog::SupplyField() {
  auto* field = new QComboBox;
  field->setObjectName(ObjectName(Item::kSupply));
  OnRefresh([this, field] {
    field->clear();
    for (const std::string& name : form_.SupplyRows()) field->addItem(ShownText(name));
    field->setCurrentIndex(form_.Supplies.SelectedRow() - 1);
  });
  OnPick(*field, "lstSupply_Click",
         [this, field] { form_.Supplies.lstSupply_Click(field->currentIndex() + 1); });
  EnableWhile(*field, [this] { return form_.CommandsEnabled(); });
  return field;
}

QPushButton* ProjectDataDialog::ItemButton(Item item) {
  if (item == Item::kFluid) {
    auto* button = new QPushButton(tr("&Equation..."));
    button->setObjectName("cmdDWF");
    button->setToolTip(tr("Picks the pressure loss equation"));
    button->setAutoDefault(false);
    OnClick(*button, "cmdDWF_Click", [this] { form_.cmdDWF_Click(); });
    return button;
  }
  if (item == Item::kIssue) {
    auto* button = new QPushButton(tr("&Next issue"));
    button->setObjectName("cmdIssue");
    button->setToolTip(tr("Takes the next issue number and today's date"));
    button->setAutoDefault(false);
    OnClick(*button, "cmdIssue_Click", [this] { form_.cmdIssue_Click(); });
    return button;
  }
  return nullptr;
}

QPushButton* ProjectDataDialog::StoredTextsButton() {
  auto* button = new QPushButton(tr("&Stored texts"));
  button->setObjectName("cmdStoredTexts");
  button->setToolTip(tr("Empties the list of texts that an item offers"));
  button->setAutoDefault(false);
  auto* menu = new QMenu(button);
  for (const ProjectItem& row : kProjectItems) {
    if (row.key.empty()) continue;
    connect(menu->addAction(LabelOf(row.item)), &QAction::triggered, this,
            [this, item = row.item] { ResetReferences(item); });
  }
  button->setMenu(menu);
  return button;
}

void ProjectDataDialog::ResetReferences(Item item) {
  Run("cmdReset_Click", [this, item] { form_.ShowStoredReferences(item); });
}

}  // namespace zeb
