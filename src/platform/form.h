#pragma once

#include <string_view>

namespace zeb {

// What a window does, without the window: its fields as texts, its enabled flags and its event
// procedures. A Shell finds the window that belongs to it by its name, such as "frmCalc".
class Form {
 public:
  Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  [[nodiscard]] virtual std::string_view Name() const = 0;
};

}  // namespace zeb
