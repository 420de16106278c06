// Any bytes as a project file: reading and checking must end with a message, not with a crash.

#include <cstddef>
#include <cstdint>
#include <string>

#include "support/project_session.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static zeb::test::ProjectSession session;
  session.Reset();
  session.Open(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
