#include "calc/density_warning.h"

#include <string>

#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr float kTolerance = 0.01F;  // mm/min

std::string Density(float value) { return FormatDecimals(value, 2); }
std::string Area(float value) { return FormatDecimals(value, 3); }

std::string Nodes(const Project& project) {
  return SignedText(project.MrNode1) + SignedText(project.MrNode2) + SignedText(project.MrNode3) +
         SignedText(project.MrNode4);
}

std::string WhatWasFound(const Project& project) {
  return "Total area of head node numbers" + Nodes(project) + " divided by 4 only comes to " +
         Area(project.MrAreaAverage) + " sq.m. but is actually " + Area(project.MrArea) +
         " sq.m in plan view and so the density over the four most remotest heads is " +
         Density(project.MrDensity) + " mm/min and not the " + Density(project.MrRequiredDensity) +
         " mm/min specified.";
}

std::string WhatToDo(const Project& project) {
  return "You may need to adjust the density of " + Density(project.MrRequiredDensity) +
         " mm/min specified to allow for the insufficient water over one or more of these heads "
         "because they cover a smaller area than the rest. Try increasing the density question "
         "(under 'Edit' 'Design Area') value by (say) 0.1 mm/min and then recalculating.";
}

}  // namespace

void WarnOfLowDensity(Session& session) {
  const Project& project = session.project;
  if (project.RuleType == kRulesNfpa || project.RuleType == kRulesFm) return;
  if (project.MrDensity >= project.MrRequiredDensity - kTolerance) return;
  const std::string line_break(kLineBreak);
  session.platform.dialogs.Show(
      {.title = "Actual density of coverage is " + Density(project.MrDensity) +
                " mm/min over 4 most remotest heads",
       .text = WhatWasFound(project) + line_break +
               "Check you have the right lengths / directions of the pipes supplying these heads." +
               line_break +
               "Then check you have the right head areas specified - the program cannot calculate "
               "these as it does not know where the walls / partitions / obstructions etc are and "
               "so relies on you to enter the correct values." +
               line_break + WhatToDo(project) + line_break +
               "You will still get this warning message but should check that the actual density "
               "of " +
               Density(project.MrDensity) + " mm/min exceeds the density you really want.",
       .icon = MessageIcon::kWarning});
}

}  // namespace zeb
