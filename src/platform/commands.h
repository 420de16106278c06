#pragma once

namespace zeb {

// How a check behaves: kKeepLines rebuilds and judges, kComposeLines also rewrites clean lines and
// marks bad ones, kSilent shows no box.
enum class CheckMode { kKeepLines = 1, kComposeLines = 2, kSilent = 3 };

// Commands that a lower folder starts though a higher one has them.
class Commands {
 public:
  Commands() = default;
  Commands(const Commands&) = delete;
  Commands& operator=(const Commands&) = delete;
  virtual ~Commands() = default;

  virtual void CheckProject(CheckMode mode) = 0;
  // Writes the canonical line of a pipe's table rows.
  virtual void ComposePipeLine(int pipe) = 0;
  // Back to the default pointer command, with which a click shows a pipe.
  virtual void ViewCommandReset() = 0;
};

}  // namespace zeb
