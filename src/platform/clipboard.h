#pragma once

#include <string>

namespace zeb {

class Clipboard {
 public:
  Clipboard() = default;
  Clipboard(const Clipboard&) = delete;
  Clipboard& operator=(const Clipboard&) = delete;
  virtual ~Clipboard() = default;

  virtual void SetText(const std::string& text) = 0;
  [[nodiscard]] virtual std::string Text() = 0;
};

}  // namespace zeb
