#include "check/summary_form.h"

#include "services/number_text.h"
#include "services/paths.h"

namespace zeb {
namespace {

constexpr int kShownPathLength = 40;

}  // namespace

SummaryForm::SummaryForm(Session& session, SummaryOf of)
    : ShowsCalculationCommands(of == SummaryOf::kCalculation), session_(session) {
  const Project& project = session.project;
  if (of == SummaryOf::kCheck) {
    Caption = "CHECK SUMMARY FOR " + ShortPath(project.ProjectPath, kShownPathLength);
    Heading = project.ProjectTitle;
    Text = project.CheckSummary;
  } else {
    Caption = "CALCULATIONS SUMMARY FOR " + project.ProjectPath;
    Heading = project.ResultLine;
    Text = project.CalcSummary;
  }
}

void SummaryForm::Form_Load() {
  session_.platform.shell.SetPanel(Panel::kHint,
                                   "Click on 'OK' to proceed or 'Print' if required now");
}

void SummaryForm::cmdOK_Click() { session_.platform.shell.Close(*this); }

void SummaryForm::cmdClip_Click() {
  const Project& project = session_.project;
  ClipTip = FormatDecimals(project.SourceFlow, 1) + " L/min @ " +
            FormatDecimals(project.SourcePressure, 3) + " bar";
  session_.platform.clipboard.SetText(ClipTip);
}

}  // namespace zeb
