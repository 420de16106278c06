#include "check/correction.h"

#include <utility>

#include "services/number_text.h"

namespace zeb {

void ReportCorrection(CheckRun& run, PipeInput& input, Fault fault, FaultFields fields) {
  fields.push_back({"i", SignedText(input.slot)});
  fields.push_back({"a", SignedText(input.start)});
  fields.push_back({"b", SignedText(input.end)});
  const int code = FaultCode(fault);
  if (code != 0) input.code = code;
  ReportCheckError(run, MakeFault(fault, fields));
  TestStopFlag(run);
}

}  // namespace zeb
