#pragma once

#include <array>
#include <string>
#include <vector>

#include "services/session.h"

namespace zeb {

// The project's pipe lines and comments as plain text in four boxes. Lines that the boxes have no
// room for cannot be edited there, but are not lost.
class PipeTextBoxes {
 public:
  static constexpr int kBoxes = 4;
  static constexpr std::size_t kBoxSize = 60000;  // characters

  // Fills the boxes, and tells the user when they are too small.
  void Load(Session& session);
  [[nodiscard]] bool Edited() const { return Boxes != loaded_; }

  // Makes the boxes' text the project's lines.
  void Store(Project& project) const;

  std::array<std::string, kBoxes> Boxes;

 private:
  [[nodiscard]] std::vector<std::string> Lines() const;

  std::array<std::string, kBoxes> loaded_;
  std::vector<std::string> without_room_;
};

}  // namespace zeb
