#pragma once

#include <fstream>
#include <sstream>
#include <string>

namespace zeb::test {

// The bytes of a file of this machine.
inline std::string RealFile(const std::string& path) {
  const std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

}  // namespace zeb::test
