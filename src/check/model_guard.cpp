#include "check/model_guard.h"

#include <algorithm>
#include <array>
#include <string>

#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr std::array kGuardedFeatures = {
    Feature::kCalculateMenu, Feature::kAdd,  Feature::kNodeCopy, Feature::kSelectionCopy,
    Feature::kDisplayMenu,   Feature::kSave, Feature::kSaveAs};

// A line for each limit that is passed.
std::string PassedLimits(const CheckRun& run) {
  struct Limit {
    int count;
    int most;
    const char* name;
  };
  const Project& project = run.project;
  // Loops that found no room in the table count too: a calculation would not balance them.
  const int loops = std::max<int>(project.LoopCount, run.closings);
  const std::array limits = {Limit{project.PipeCount, project.MaxPipes, "pipes"},
                             Limit{project.HeadCount, project.MaxHeads, "heads"},
                             Limit{loops, project.MaxLoops, "loops"}};
  std::string lines;
  for (const Limit& limit : limits) {
    if (limit.count <= limit.most) continue;
    lines += "It has" + SignedText(limit.count) + " " + limit.name + ", but the limit is" +
             SignedText(limit.most) + ".";
    lines += kLineBreak;
  }
  return lines;
}

}  // namespace

void GuardModelSize(const CheckRun& run) {
  const std::string passed = PassedLimits(run);
  for (const Feature feature : kGuardedFeatures) {
    run.session.platform.shell.Enable(feature, passed.empty());
  }
  if (passed.empty() || run.mode == CheckMode::kSilent) return;
  const std::string line_end(kLineBreak);
  run.session.platform.dialogs.Show(
      {.title = "System model size exceeded ",
       .text = "This system is too large for ZEB." + line_end + passed + line_end +
               "Calculating, adding, copying, displaying and saving are not possible until it is "
               "back within the limits.",
       .icon = MessageIcon::kWarning});
}

}  // namespace zeb
