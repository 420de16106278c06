#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "ui/form_dialog.h"

namespace zeb {

// Which window shows the form of a name.
class FormRegistry {
 public:
  template <class FormType, class Dialog>
  void Add(const std::string& name) {
    makers_[name] = [](const Ui& ui, Form& form, QWidget* parent) {
      return std::make_unique<Dialog>(ui, dynamic_cast<FormType&>(form), parent);
    };
  }

  // Null for a form that no window belongs to.
  [[nodiscard]] std::unique_ptr<FormDialog> Make(const Ui& ui, Form& form, QWidget* parent) const;

 private:
  using Maker = std::function<std::unique_ptr<FormDialog>(const Ui&, Form&, QWidget*)>;
  std::map<std::string, Maker, std::less<>> makers_;
};

// All windows of the program.
[[nodiscard]] const FormRegistry& ProgramForms();

}  // namespace zeb
