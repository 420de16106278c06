#include "temporary_folder.h"

#include <cstdlib>
#include <stdexcept>
#include <system_error>

namespace zeb::test {

TemporaryFolder::TemporaryFolder() {
  std::string name = std::filesystem::temp_directory_path() / "zeb-test-XXXXXX";
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

TemporaryVariable::TemporaryVariable(const char* name, const std::string& value) : name_(name) {
  const char* before = std::getenv(name);
  was_set_ = before != nullptr;
  if (was_set_) before_ = before;
  setenv(name, value.c_str(), 1);
}

TemporaryVariable::~TemporaryVariable() {
  if (was_set_) {
    setenv(name_, before_.c_str(), 1);
  } else {
    unsetenv(name_);
  }
}

}  // namespace zeb::test
