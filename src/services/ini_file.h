#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/file_system.h"

namespace zeb {

// A file of [section] and key=value lines. Section and key names compare without regard to case;
// lines it does not know are kept. Failures are raised as RuntimeFailure with the description
// "CIniFile component failure" and the reason.
class CIniFile {
 public:
  explicit CIniFile(FileSystem& files) : files_(files) {}

  // Sets the file's path; "Invalid file name" when it is empty.
  void Init(const std::string& path);
  [[nodiscard]] const std::string& FileName() const { return path_; }

  [[nodiscard]] std::string GetStringValue(const std::string& section, const std::string& key,
                                           const std::string& default_value);
  [[nodiscard]] double GetNumericValue(const std::string& section, const std::string& key,
                                       double default_value);
  void SaveStringValue(const std::string& section, const std::string& key,
                       const std::string& value);
  void SaveNumericValue(const std::string& section, const std::string& key, double value);
  void DeleteKey(const std::string& section, const std::string& key);
  void DeleteSection(const std::string& section);
  [[nodiscard]] std::vector<std::string> EnumerateAllKeys(const std::string& section);
  [[nodiscard]] std::vector<std::string> EnumerateAllSections();

 private:
  FileSystem& files_;
  std::string path_;
};

}  // namespace zeb
