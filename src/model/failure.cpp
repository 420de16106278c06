#include "model/failure.h"

#include <array>
#include <utility>

namespace zeb {
namespace {

struct NumberedText {
  int number;
  const char* text;
};

constexpr std::array kDescriptions{
    NumberedText{5, "Invalid procedure call or argument"},
    NumberedText{6, "Overflow"},
    NumberedText{7, "Out of memory"},
    NumberedText{9, "Subscript out of range"},
    NumberedText{11, "Division by zero"},
    NumberedText{13, "Type mismatch"},
    NumberedText{52, "Bad file name or number"},
    NumberedText{53, "File not found"},
    NumberedText{54, "Bad file mode"},
    NumberedText{55, "File already open"},
    NumberedText{57, "Device I/O error"},
    NumberedText{58, "File already exists"},
    NumberedText{59, "Bad record length"},
    NumberedText{61, "Disk full"},
    NumberedText{62, "Input past end of file"},
    NumberedText{63, "Bad record number"},
    NumberedText{67, "Too many files"},
    NumberedText{68, "Device unavailable"},
    NumberedText{70, "Permission denied"},
    NumberedText{71, "Disk not ready"},
    NumberedText{74, "Can't rename with different drive"},
    NumberedText{75, "Path/File access error"},
    NumberedText{76, "Path not found"},
};

}  // namespace

std::string FailureDescription(int number) {
  for (const NumberedText& entry : kDescriptions) {
    if (entry.number == number) return entry.text;
  }
  return "Application-defined or object-defined error";
}

RuntimeFailure::RuntimeFailure(int number) : RuntimeFailure(number, FailureDescription(number)) {}

RuntimeFailure::RuntimeFailure(int number, std::string description)
    : number_(number), description_(std::move(description)) {}

}  // namespace zeb
