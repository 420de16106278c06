#include "calc/progress_form.h"

#include "services/number_text.h"

namespace zeb {

void ProgressForm::SetDuty(float flow, float pressure) {
  message_ = "Source =" + SignedText(flow) + " L/min at" + SignedText(pressure) + " bar";
}

void ProgressForm::cmdStop_Click() { session_.project.CalcCancelled = 1; }

ProgressWindow::ProgressWindow(Session& session, bool shown)
    : session_(session),
      form_(session),
      shown_(shown),
      refresh_time_(session.platform.clock.Seconds()) {
  session_.platform.shell.SetBusyPointer(true);
  if (shown_) session_.platform.shell.Open(form_);
}

void ProgressWindow::Update() {
  constexpr double kRefreshInterval = 0.5;  // s
  if (!shown_) return;
  form_.SetDuty(session_.project.SourceFlow, session_.project.SourcePressure);
  const double now = session_.platform.clock.Seconds();
  if (now - refresh_time_ < kRefreshInterval) return;
  refresh_time_ = now;
  session_.platform.shell.Refresh(form_);
}

ProgressWindow::~ProgressWindow() {
  if (shown_) session_.platform.shell.Close(form_);
  session_.platform.shell.SetBusyPointer(false);
}

}  // namespace zeb
