#pragma once

#include "lifecycle/options_form.h"
#include "ui/form_dialog.h"

class QFormLayout;
class QGroupBox;

namespace zeb {

// The user's own settings, frmOptions.
class OptionsDialog final : public FormDialog {
  Q_OBJECT

 public:
  OptionsDialog(const Ui& ui, OptionsForm& form, QWidget* parent);

 private:
  [[nodiscard]] QGroupBox* NewProjects();
  [[nodiscard]] QGroupBox* Drawing();
  [[nodiscard]] QGroupBox* Work();
  void AddList(QFormLayout& rows, const char* name, const QString& label, std::string& text,
               const Entries& entries);
  void AddFlag(QFormLayout& rows, const char* name, const QString& label, bool& flag);
  void AddFont(QFormLayout& rows);
  void AddColour(QFormLayout& rows);
  void AddFolder(QFormLayout& rows);
  void PickColour();
  void PickFolder();

  OptionsForm& form_;
};

}  // namespace zeb
