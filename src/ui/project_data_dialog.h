#pragma once

#include "model/project.h"
#include "project/project_data_form.h"
#include "ui/form_dialog.h"

class QDialogButtonBox;
class QGridLayout;
class QLayout;
class QListWidget;
class QPushButton;

namespace zeb {

// The project data, ZEBF02: one page for the items, the head codes, the supplies and the text.
class ProjectDataDialog final : public FormDialog {
  Q_OBJECT

 public:
  ProjectDataDialog(const Ui& ui, ProjectDataForm& form, QWidget* parent);

 private:
  // project_data_items.cpp
  [[nodiscard]] QWidget* ItemsPage();
  void AddItem(QGridLayout& grid, int row, int column, Item item);
  [[nodiscard]] QWidget* ItemField(Item item);
  [[nodiscard]] QWidget* SupplyField();
  [[nodiscard]] QPushButton* ItemButton(Item item);
  [[nodiscard]] QPushButton* StoredTextsButton();
  void ResetReferences(Item item);

  // project_data_heads.cpp
  [[nodiscard]] QWidget* HeadCodesPage();
  [[nodiscard]] QListWidget* HeadCodeList();
  [[nodiscard]] QWidget* HeadCodeFields();
  [[nodiscard]] QDialogButtonBox* HeadCodeButtons();

  // project_data_supplies.cpp
  [[nodiscard]] QWidget* SuppliesPage();
  [[nodiscard]] QListWidget* SupplyList();
  [[nodiscard]] QWidget* SupplyFields();
  [[nodiscard]] QGridLayout* SupplyPairs();
  [[nodiscard]] QDialogButtonBox* SupplyButtons();

  // project_data_dialog.cpp
  [[nodiscard]] QWidget* TextPage();
  // A button that is enabled while the condition holds.
  void AddCommand(QDialogButtonBox& row, const char* name, const QString& text, const QString& tip,
                  std::function<bool()> enabled, const Event& event);
  void EnableWhile(QWidget& widget, std::function<bool()> condition);

  ProjectDataForm& form_;
};

}  // namespace zeb
