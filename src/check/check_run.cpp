#include "check/check_run.h"

#include "model/real_arithmetic.h"
#include "project/fault_report.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {

void CheckRun::Phase(const char* name, void (*body)(CheckRun& run)) {
  phase = name;
  statement += 10;
  ClearRealArithmeticFlags();
  body(*this);
  CheckRealArithmeticFlags();
}

void ReportCheckError(CheckRun& run, CheckFault fault) {
  Project& project = run.project;
  ++project.CheckErrorCount;
  if (fault.correction.empty()) fault.correction = "You will need to investigate this problem.";
  project.WarningText += fault.short_line;
  project.WarningText += kLineBreak;
  ShowErrorPanel(run.session);
  const bool show_box = !run.session.SuppressErrors && run.mode != CheckMode::kSilent;
  ReportFault(run.session, SignedText(project.CheckErrorCount) + " in " + project.ProjectPath,
              fault, show_box);
}

void TestStopFlag(const CheckRun& run) {
  if (run.project.StopFlag == kStopCheck) throw CheckStopped();
}

void ShowErrorPanel(Session& session) {
  const int errors = session.project.CheckErrorCount;
  const std::string count = PlainText(errors);
  const std::string boxes = session.SuppressErrors ? "[OFF]" : "[ON]";
  Shell& shell = session.platform.shell;
  shell.SetPanel(Panel::kErrors, errors == 0 ? boxes : "Err #: " + count + " " + boxes);
  shell.SetPanelTip(Panel::kErrors, errors == 0 ? "" : count + " Errors found on last check ");
}

}  // namespace zeb
