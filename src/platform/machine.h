#pragma once

#include <string>

namespace zeb {

// The user's computer.
class Machine {
 public:
  Machine() = default;
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;
  virtual ~Machine() = default;

  // Blank when unknown.
  [[nodiscard]] virtual std::string UserName() = 0;
  [[nodiscard]] virtual std::string ComputerName() = 0;

  // Folders without a separator at the end.
  [[nodiscard]] virtual std::string ExecutableFolder() = 0;
  [[nodiscard]] virtual std::string DocumentsFolder() = 0;
  [[nodiscard]] virtual std::string ConfigFolder() = 0;
  [[nodiscard]] virtual std::string DesktopFolder() = 0;
  // A variable of the environment, empty when unset.
  [[nodiscard]] virtual std::string Environment(const std::string& name) = 0;

  virtual void MoveToTrash(const std::string& path) = 0;
  // A random text of letters and digits.
  [[nodiscard]] virtual std::string NewIdentifier() = 0;
};

}  // namespace zeb
