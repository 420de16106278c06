#pragma once

#include <string>

namespace zeb {

// A numbered fault of the input, as it was reported: 1 to 16 of the project's lines, 20 to 29 of
// the pipe data file.
struct CheckFault {
  int number = 0;
  std::string location;
  std::string problem;
  std::string reason;
  std::string correction;
  std::string short_line;  // its line in the list of warnings; faults of the pipe data have none
};

}  // namespace zeb
