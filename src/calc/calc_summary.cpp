#include "calc/calc_summary.h"

#include <string>

#include "calc/source_duty.h"
#include "calc/summary_sections.h"
#include "check/summary_form.h"
#include "services/text.h"

namespace zeb {
namespace {

void TellOfFailedBalance(Session& session, SummaryText& text) {
  session.platform.dialogs.Show(
      {.title = "Calculation Error",
       .text = "The calculation has fail to balance please check the Calculation Summary",
       .icon = MessageIcon::kWarning});
  std::string head("*** Warring this calculation has not balanced ***");
  text.PutFirst(head.append(kLineBreak).append(kLineBreak));
}

}  // namespace

bool BuildCalcSummary(Session& session) {
  Project& project = session.project;
  SummaryText text;
  AddSupplySection(project, text);
  AddHeadDutySection(project, text);
  AddPipeSection(project, text);
  AddRemoteSection(project, text);
  AddRangeSection(project, text);
  AddRuleSection(project, text);
  AddSourceSection(project, text);
  AddVelocityProfile(project, text);
  const bool balanced = AddBalanceSection(project, text);
  if (!balanced) TellOfFailedBalance(session, text);
  AddClosingSection(project, text);
  project.CalcSummary = text.Text();
  project.ResultLine = balanced ? SourceDutyLine(project) : "Calculation Incomplete";
  return balanced;
}

// Sizes are there to be varied only where they were entered and the duty follows from them.
void ShowCalcSummary(Session& session) {
  const Project& project = session.project;
  SummaryForm form(session, SummaryOf::kCalculation);
  form.ShowsOptimise = project.PumpCurveIndex <= 1 && project.UnsizedCount == 0;
  session.platform.shell.ShowModal(form);
}

}  // namespace zeb
