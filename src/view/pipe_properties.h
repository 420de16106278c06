#pragma once

#include <string>
#include <vector>

#include "model/project.h"

namespace zeb {

struct PipeProperty {
  std::string item;
  std::string value;
  std::string units;

  friend bool operator==(const PipeProperty&, const PipeProperty&) = default;
};

// A pipe's data in short, with its results after a calculation and its head, if it has one.
[[nodiscard]] std::vector<PipeProperty> PipeProperties(const Project& project, int pipe);

}  // namespace zeb
