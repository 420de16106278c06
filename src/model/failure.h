#pragma once

#include <exception>
#include <string>

namespace zeb {

// A run-time failure with the classic number and description. It ends the command in hand;
// the tables stay as they are.
class RuntimeFailure : public std::exception {
 public:
  // The description is the standard one of `number`.
  explicit RuntimeFailure(int number);
  RuntimeFailure(int number, std::string description);

  [[nodiscard]] int Number() const noexcept { return number_; }
  [[nodiscard]] const std::string& Description() const noexcept { return description_; }
  [[nodiscard]] const char* what() const noexcept override { return description_.c_str(); }

 private:
  int number_;
  std::string description_;
};

namespace failure {
inline constexpr int kInvalidProcedureCall = 5;
inline constexpr int kOverflow = 6;
inline constexpr int kSubscriptOutOfRange = 9;
inline constexpr int kDivisionByZero = 11;
inline constexpr int kTypeMismatch = 13;
inline constexpr int kBadFileName = 52;
inline constexpr int kFileNotFound = 53;
inline constexpr int kFileAlreadyOpen = 55;
inline constexpr int kDeviceError = 57;
inline constexpr int kFileAlreadyExists = 58;
inline constexpr int kDiskFull = 61;
inline constexpr int kInputPastEnd = 62;
inline constexpr int kTooManyFiles = 67;
inline constexpr int kPermissionDenied = 70;
inline constexpr int kDiskNotReady = 71;
inline constexpr int kPathFileAccess = 75;
inline constexpr int kPathNotFound = 76;
}  // namespace failure

// The standard description of a failure number, e.g. 9 "Subscript out of range".
[[nodiscard]] std::string FailureDescription(int number);

}  // namespace zeb
