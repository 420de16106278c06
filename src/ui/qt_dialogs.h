#pragma once

#include "platform/dialogs.h"

namespace zeb {

// Boxes over the window in front.
class QtDialogs final : public Dialogs {
 public:
  Answer Show(const Message& message) override;
  std::optional<std::string> Input(const std::string& title, const std::string& prompt,
                                   const std::string& initial) override;
  std::string OpenFile(const FileDialog& dialog) override;
  std::string SaveFile(const FileDialog& dialog) override;
};

}  // namespace zeb
