#pragma once

#include <string>

#include "model/check_fault.h"
#include "platform/form.h"
#include "services/session.h"

namespace zeb {

enum class FaultAnswer { kContinue, kStop };

// The stop flag that ends a check or the reading of pipe data at its next test.
inline constexpr int kStopCheck = 3;

// The warning box of a numbered fault: four frames, and the choice to go on or to stop. It shows
// the report fields of the project as they stand when it is made.
class WarningForm : public Form {
 public:
  explicit WarningForm(Session& session);

  [[nodiscard]] std::string_view Name() const override { return "ZEBF04"; }

  // Goes on.
  void cbut_Click();
  // Stops at the next test.
  void Canbut_Click();

  std::string Caption;
  std::string Location;
  std::string Problem;
  std::string Reason;
  std::string Correction;

 private:
  Session& session_;
};

// The common step of all numbered faults: stores the report fields ErrorNumberText to
// ErrorCorrection, adds the fault to Faults and, if `show_box`, beeps and shows the warning box.
// `number_text` tells which report it is and of what file; its leading blanks are dropped. Answers
// kStop when the user stopped, and StopFlag is kStopCheck then. Without a box the flag stays.
FaultAnswer ReportFault(Session& session, const std::string& number_text, const CheckFault& fault,
                        bool show_box);

}  // namespace zeb
