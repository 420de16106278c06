#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/file_system.h"

namespace zeb {

// A file of [section] and key=value lines. Section and key names compare without regard to case;
// lines it does not know are kept; a change is written at once and as a whole. Blanks at the ends
// of a value survive, line breaks in it become blanks. A missing file name, file, section or key
// name raises a ComponentFailure, the file itself those of the file system.
class CIniFile {
 public:
  explicit CIniFile(FileSystem& files) : files_(files) {}

  // Sets the file's path; "Invalid file name" when it is empty.
  void Init(const std::string& path);
  [[nodiscard]] const std::string& FileName() const { return path_; }

  [[nodiscard]] bool HasKey(const std::string& section, const std::string& key);
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
