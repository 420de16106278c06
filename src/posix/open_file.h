#pragma once

#include <string>
#include <string_view>

namespace zeb {

// An open regular file or folder by its native path; closed at the end of its life.
class OpenFile {
 public:
  // Raises a RuntimeFailure, 53 or 76 when the file or its folder is missing.
  OpenFile(const std::string& native_path, int flags);
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  ~OpenFile();

  // Refuses anything else, 75.
  void RequireRegular() const;
  [[nodiscard]] std::string ReadAll() const;
  void Truncate() const;
  void WriteAll(std::string_view bytes) const;
  // To the disk itself. A file system that cannot do that is taken as it is.
  void Flush() const;
  // Tells the failures that a network disk only has at the end.
  void Close();

 private:
  int descriptor_;
};

}  // namespace zeb
