#pragma once

#include <string>

namespace zeb {

struct Project;

// The pipe data tables as aligned text: pipe types, nominal sizes with the bores of every type, and
// the equivalent lengths in metres and feet.
[[nodiscard]] std::string PipeDataText(const Project& project);

}  // namespace zeb
