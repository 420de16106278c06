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

// Whether the tables hold the pipe. After a broken check they may name what is not there.
[[nodiscard]] bool IsInNetwork(const Project& project, int pipe);

// A pipe's data in short, with its results after a calculation and its head, if it has one.
[[nodiscard]] std::vector<PipeProperty> PipeProperties(const Project& project, int pipe);

}  // namespace zeb
