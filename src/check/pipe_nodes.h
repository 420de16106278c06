#pragma once

#include <cstdint>
#include <unordered_set>

#include "check/check_run.h"
#include "check/fault_texts.h"
#include "check/pipe_input.h"
#include "model/limits.h"
#include "model/table.h"

namespace zeb {

// Judges and books the nodes of the pipes as they are read, and knows the pipes read so far by
// their nodes.
class PipeNodes {
 public:
  explicit PipeNodes(CheckRun& run) : run_(run), project_(run.project) {
    known_.reserve(kLastPipe);
  }

  // Corrects the two nodes of a pipe. False for a repeat of an earlier pipe, which is dropped.
  bool Judge(PipeInput& input);
  // Books the nodes and finds the pipe's feed and the loop that it closes.
  void Book(PipeInput& input);

  // The highest earlier slot that ends at a node, 0 for none.
  [[nodiscard]] int LastInto(int node) const { return last_into_[node]; }
  // Makes the pipe an earlier one for those that follow.
  void Remember(const PipeInput& input);

 private:
  void JudgeStart(PipeInput& input);
  void JudgeEnd(PipeInput& input);
  void JudgeConnection(PipeInput& input);
  [[nodiscard]] bool IsRepeat(const PipeInput& input) const;
  void ReportRepeat(const PipeInput& input);
  void Correct(PipeInput& input, Fault fault, int& node, int corrected);

  CheckRun& run_;
  Project& project_;
  int spare_node_ = 9910;
  std::unordered_set<std::int32_t> known_;
  Table<Int16, kLastNode> last_into_;
};

}  // namespace zeb
