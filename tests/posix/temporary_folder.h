#pragma once

#include <filesystem>
#include <string>

namespace zeb::test {

// A folder for one test, gone with all its files at the end of the test.
class TemporaryFolder {
 public:
  TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  [[nodiscard]] std::string operator/(const std::string& name) const {
    return (path_ / name).native();
  }
  [[nodiscard]] const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};

// Sets an environment variable for one test.
class TemporaryVariable {
 public:
  TemporaryVariable(const char* name, const std::string& value);
  TemporaryVariable(const TemporaryVariable&) = delete;
  TemporaryVariable& operator=(const TemporaryVariable&) = delete;
  ~TemporaryVariable();

 private:
  const char* name_;
  bool was_set_;
  std::string before_;
};

}  // namespace zeb::test
