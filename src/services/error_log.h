#pragma once

#include <string>

#include "platform/platform.h"

namespace zeb {

// The text log ZEB_error.log in the program folder, made with a head of three lines at its first
// entry; the first entry of a run is preceded by a line that tells of the new session.
class ErrorLog {
 public:
  explicit ErrorLog(const Platform& platform) : platform_(platform) {}

  // Where the log lies; without a folder nothing is written.
  void Locate(const std::string& program_folder) { folder_ = program_folder; }
  [[nodiscard]] std::string Path() const;

  struct Entry {
    std::string text;
    std::string source;
    int line = 0;
    bool show = false;   // also shows a stop message
    bool brief = false;  // date, time and text only
  };
  // A log that cannot be written is no failure of the command in hand.
  void LogError(const Entry& entry);

 private:
  void Append(const Entry& entry);

  const Platform& platform_;
  std::string folder_;
  bool session_line_written_ = false;
};

}  // namespace zeb
