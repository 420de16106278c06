#include "check/upstream_sizes.h"

#include <string>
#include <vector>

#include "check/fault_texts.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kMostLoops = 3;
constexpr const char* kHeading = "  P i p e      Size   Upstream   Size";

class UpstreamCheck {
 public:
  explicit UpstreamCheck(CheckRun& run)
      : run_(run), project_(run.project), walked_(run.pipes + 1) {}

  // A way that an earlier head walked has nothing new to report.
  void WalkFrom(int pipe) {
    for (; pipe != 0 && !walked_[pipe]; pipe = project_.PipeUpstream[pipe]) {
      walked_[pipe] = true;
      Judge(pipe, project_.PipeUpstream[pipe]);
    }
  }

 private:
  void Judge(int pipe, int upstream);
  void ReportSmall(int pipe, int upstream);
  [[nodiscard]] std::string Columns(int pipe, int upstream) const;

  CheckRun& run_;
  Project& project_;
  std::vector<bool> walked_;
  bool first_report_ = true;
};

void UpstreamCheck::Judge(int pipe, int upstream) {
  const int upstream_size = project_.PipeSize[upstream];
  const bool small = upstream > 0 && upstream_size > 0 && upstream_size < project_.PipeSize[pipe];
  if (!small || project_.PipeSmallUp[upstream] != 0) return;
  ReportSmall(pipe, upstream);
  project_.PipeError[pipe] = FaultCode(Fault::kSmallUpstream);
  project_.PipeError[upstream] = FaultCode(Fault::kSmallUpstream);
  project_.PipeSmallUp[upstream] = 1;
  ++project_.WarningCount;
}

void UpstreamCheck::ReportSmall(int pipe, int upstream) {
  const std::string heading = first_report_ ? kHeading + std::string(kLineBreak) : "";
  first_report_ = false;
  ReportCheckError(run_, MakeFault(Fault::kSmallUpstream,
                                   {{"columns", heading + Columns(pipe, upstream)},
                                    {"node", SignedText(project_.PipeStartNode[pipe])},
                                    {"a", SignedText(project_.PipeStartNode[pipe])},
                                    {"b", SignedText(project_.PipeEndNode[pipe])},
                                    {"size", SignedText(project_.PipeSize[pipe])},
                                    {"up a", SignedText(project_.PipeStartNode[upstream])},
                                    {"up b", SignedText(project_.PipeEndNode[upstream])},
                                    {"up size", SignedText(project_.PipeSize[upstream])}}));
}

std::string UpstreamCheck::Columns(int pipe, int upstream) const {
  std::string columns;
  for (const int slot : {pipe, upstream}) {
    for (const int value : {static_cast<int>(project_.PipeStartNode[slot]),
                            static_cast<int>(project_.PipeEndNode[slot]),
                            static_cast<int>(project_.PipeSize[slot])}) {
      columns += FixedNumber(static_cast<float>(value), 5, 0);
    }
  }
  return columns;
}

}  // namespace

void CheckUpstreamSizes(CheckRun& run) {
  const Project& project = run.project;
  if (project.LoopCount > kMostLoops || run.options.no_fitting_checks) return;
  UpstreamCheck check(run);
  for (int head = 1; head <= run.heads; ++head) {
    check.WalkFrom(static_cast<int>(project.HeadPipe[head]));
    TestStopFlag(run);
  }
}

}  // namespace zeb
