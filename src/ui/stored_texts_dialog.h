#pragma once

#include "project/stored_references.h"
#include "ui/form_dialog.h"

namespace zeb {

// Empties the list of texts that a project item offers, ZEBF18.
class StoredTextsDialog final : public FormDialog {
  Q_OBJECT

 public:
  StoredTextsDialog(const Ui& ui, ResetReferencesForm& form, QWidget* parent);
};

}  // namespace zeb
