#pragma once

#include <string>
#include <string_view>

#include "platform/form.h"
#include "services/session.h"

namespace zeb {

// The window beside a running calculation, with its Stop command.
class ProgressForm : public Form {
 public:
  explicit ProgressForm(Session& session) : session_(session) {}

  [[nodiscard]] std::string_view Name() const override { return "frmCalcProgress"; }
  [[nodiscard]] static std::string_view Title() { return "Calculations in progress"; }
  [[nodiscard]] const std::string& Message() const { return message_; }

  // Tells the duty that the calculation has come to.
  void SetDuty(float flow, float pressure);
  void cmdStop_Click();

 private:
  Session& session_;
  std::string message_ = "Balancing flows in loops";
};

// The busy pointer and, when it is shown, the form, for as long as this lives.
class ProgressWindow {
 public:
  ProgressWindow(Session& session, bool shown);
  ProgressWindow(const ProgressWindow&) = delete;
  ProgressWindow& operator=(const ProgressWindow&) = delete;
  ~ProgressWindow();

  // Brings the duty up to date, on the screen twice a second.
  void Update();

 private:
  Session& session_;
  ProgressForm form_;
  bool shown_;
  double refresh_time_;
};

}  // namespace zeb
