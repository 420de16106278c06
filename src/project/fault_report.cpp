#include "project/fault_report.h"

#include "services/text.h"

namespace zeb {

WarningForm::WarningForm(Session& session)
    : Caption("ZEB Warning No: " + session.project.ErrorNumberText),
      Location(session.project.ErrorLocation),
      Problem(session.project.ErrorProblem),
      Reason(session.project.ErrorReason),
      Correction(session.project.ErrorCorrection),
      session_(session) {}

void WarningForm::cbut_Click() {
  session_.project.StopFlag = 0;
  session_.platform.shell.Close(*this);
}

void WarningForm::Canbut_Click() {
  session_.project.StopFlag = kStopCheck;
  session_.platform.shell.Close(*this);
}

FaultAnswer ReportFault(Session& session, const std::string& number_text, const CheckFault& fault,
                        bool show_box) {
  Project& project = session.project;
  project.ErrorNumberText = TrimLeft(number_text);
  project.ErrorLocation = fault.location;
  project.ErrorProblem = fault.problem;
  project.ErrorReason = fault.reason;
  project.ErrorCorrection = fault.correction;
  project.Faults.push_back(fault);
  if (!show_box) return FaultAnswer::kContinue;

  session.platform.shell.Beep();
  WarningForm form(session);
  session.platform.shell.ShowModal(form);
  return project.StopFlag == kStopCheck ? FaultAnswer::kStop : FaultAnswer::kContinue;
}

}  // namespace zeb
