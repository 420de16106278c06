#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "model/failure.h"
#include "services/text.h"

namespace zeb {

// The failure of a self-contained class: its description is "<class> component failure" and, on a
// line of its own, the reason.
class ComponentFailure : public RuntimeFailure {
 public:
  ComponentFailure(int number, const std::string& component, std::string_view reason)
      : RuntimeFailure(number, component + " component failure" + std::string(kLineBreak) +
                                   std::string(reason)),
        source_("ZEB." + component) {}

  // The program's and the class's name.
  [[nodiscard]] const std::string& Source() const noexcept { return source_; }

 private:
  std::string source_;
};

namespace failure {
inline constexpr int kIniFile = 1001;
}  // namespace failure

}  // namespace zeb
