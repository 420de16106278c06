#pragma once

#include "check/check_run.h"
#include "check/line_options.h"
#include "check/line_words.h"
#include "check/pipe_input.h"

namespace zeb {

// Makes the heads of the pipes as they are read.
class LineHeads {
 public:
  explicit LineHeads(CheckRun& run);

  // The special discharge of an added building at the pipe's end.
  void AddDischarge(const PipeInput& input, const LineOptions& options);
  // The head of the next two words, code and area. Without a code there is none.
  void AddHead(PipeInput& input, LineWords& words, const LineOptions& options);

 private:
  [[nodiscard]] int TakeCode(PipeInput& input, int code);
  void JudgeArea(PipeInput& input, int code, float area);
  void WatchLargeHead(int code, float area);
  [[nodiscard]] float UsableK(PipeInput& input, int code);
  void CountUse(int code, float area);
  int NewHead(int pipe);

  CheckRun& run_;
  Project& project_;
  float default_density_;  // mm/min
  float highest_area_ = 31.0F;
};

}  // namespace zeb
