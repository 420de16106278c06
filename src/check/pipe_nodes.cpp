#include "check/pipe_nodes.h"

#include <algorithm>

#include "check/correction.h"
#include "services/number_text.h"

namespace zeb {
namespace {

constexpr int kLowestStart = 1;
constexpr int kHighestStart = 9900;
constexpr int kLowestEnd = 2;
constexpr int kHighestEnd = 9901;

std::int32_t KeyOf(const PipeInput& input) { return input.start * (kLastNode + 1) + input.end; }

}  // namespace

bool PipeNodes::Judge(PipeInput& input) {
  JudgeStart(input);
  JudgeEnd(input);
  JudgeConnection(input);
  if (IsRepeat(input)) {
    ReportRepeat(input);
    return false;
  }
  if (input.end == project_.SourceNode) {
    Correct(input, Fault::kEndIsSource, input.end, project_.SourceNode + 1);
  }
  return true;
}

void PipeNodes::JudgeStart(PipeInput& input) {
  if (input.slot > 1 && input.start == project_.SourceNode) {
    Correct(input, Fault::kStartIsSource, input.start, project_.PipeEndNode[1]);
  }
  if (input.start < kLowestStart || input.start > kHighestStart) {
    Correct(input, Fault::kStartRange, input.start,
            std::clamp(input.start, kLowestStart, kHighestStart));
  }
}

void PipeNodes::JudgeEnd(PipeInput& input) {
  if (input.end < kLowestEnd || input.end > kHighestEnd) {
    Correct(input, Fault::kEndRange, input.end, std::clamp(input.end, kLowestEnd, kHighestEnd));
  }
  if (input.end == input.start) Correct(input, Fault::kSameNodes, input.end, ++spare_node_);
}

void PipeNodes::JudgeConnection(PipeInput& input) {
  if (input.slot == 1) {
    project_.SourceNode = input.start;
  } else if (project_.NodeEnds[input.start] == 0) {
    Correct(input, Fault::kIsolated, input.start, project_.PipeEndNode[input.slot - 1]);
  }
}

void PipeNodes::Correct(PipeInput& input, Fault fault, int& node, int corrected) {
  ReportCorrection(run_, input, fault, {{"n", SignedText(corrected)}});
  node = corrected;
}

bool PipeNodes::IsRepeat(const PipeInput& input) const { return known_.contains(KeyOf(input)); }

void PipeNodes::ReportRepeat(const PipeInput& input) {
  const CheckFault fault =
      MakeFault(Fault::kRepeatedPipe, {{"a", SignedText(input.start)},
                                       {"b", SignedText(input.end)},
                                       {"line", SignedText(input.line)},
                                       {"last location", project_.ErrorLocation}});
  ReportCheckError(run_, fault);
  TestStopFlag(run_);
}

void PipeNodes::Book(PipeInput& input) {
  ++project_.NodeStarts[input.start];
  ++project_.NodeEnds[input.end];
  Int16& first_into_end = project_.NodeFirstPipe[input.end];
  if (first_into_end == 0) first_into_end = input.slot;
  input.upstream = project_.NodeFirstPipe[input.start];
  if (project_.NodeEnds[input.end] == 1) return;

  input.loop_close = first_into_end;
  ++run_.closings;
  const int row = std::min(run_.closings, kLastLoop);
  project_.LoopFirst[row] = input.slot;
  project_.LoopLast[row] = input.loop_close;
}

void PipeNodes::Remember(const PipeInput& input) {
  if (input.slot == kLastPipe) return;  // the next pipe takes this slot
  known_.insert(KeyOf(input));
  last_into_[input.end] = input.slot;
}

}  // namespace zeb
