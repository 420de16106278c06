#pragma once

#include "platform/machine.h"

namespace zeb {

// The user's computer by the conventions of the free desktop: folders from the XDG variables and
// user-dirs.dirs, the trash of the home folder.
class PosixMachine final : public Machine {
 public:
  [[nodiscard]] std::string UserName() override;
  [[nodiscard]] std::string ComputerName() override;

  [[nodiscard]] std::string ExecutableFolder() override;
  [[nodiscard]] std::string DocumentsFolder() override;
  [[nodiscard]] std::string ConfigFolder() override;
  [[nodiscard]] std::string DesktopFolder() override;
  [[nodiscard]] std::string Environment(const std::string& name) override;

  void MoveToTrash(const std::string& path) override;
  [[nodiscard]] std::string NewIdentifier() override;
};

}  // namespace zeb
