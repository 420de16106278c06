#pragma once

#include "platform/clipboard.h"

namespace zeb {

class QtClipboard final : public Clipboard {
 public:
  void SetText(const std::string& text) override;
  [[nodiscard]] std::string Text() override;
};

}  // namespace zeb
