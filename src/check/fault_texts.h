#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/check_fault.h"

namespace zeb {

// The faults that a check reports, in the order of their numbers; one number has two.
enum class Fault {
  kStartIsSource,
  kStartRange,
  kEndRange,
  kEndIsSource,
  kSameNodes,
  kIsolated,
  kDirection,
  kPipeType,
  kSize,
  kNotClosing,
  kHeadCode,
  kHeadArea,
  kHeadK,
  kDuplicateHead,
  kSmallUpstream,
  kTeeShape,
  kRepeatedPipe,
};

// A value for the place of that name in a fault's texts.
struct FaultField {
  std::string_view name;
  std::string text;
};
using FaultFields = std::vector<FaultField>;

// The fault's number and its texts with all places filled in.
[[nodiscard]] CheckFault MakeFault(Fault fault, const FaultFields& fields);

// The code of the fault in PipeError; 0 for one that leaves the pipe as it is.
[[nodiscard]] int FaultCode(Fault fault);

}  // namespace zeb
