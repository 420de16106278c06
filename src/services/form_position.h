#pragma once

#include <optional>
#include <string>

#include "services/settings.h"

namespace zeb {

// Where a form lay and how large it was when it was last closed. A form without a stored place is
// centred, one without a stored size has the size of its design.
struct FormPosition {
  std::optional<int> top;
  std::optional<int> left;
  std::optional<int> width;
  std::optional<int> height;

  friend bool operator==(const FormPosition&, const FormPosition&) = default;
};

void SaveFormPos(Settings& settings, const std::string& form, const FormPosition& position);
[[nodiscard]] FormPosition LoadFormPos(Settings& settings, const std::string& form);

}  // namespace zeb
