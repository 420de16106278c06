#pragma once

#include <string>

#include "platform/form.h"
#include "services/session.h"

namespace zeb {

// Of what a summary tells.
enum class SummaryOf { kCheck, kCalculation };

// The window that shows the summary of the last check or of the last calculation.
class SummaryForm : public Form {
 public:
  SummaryForm(Session& session, SummaryOf of);

  [[nodiscard]] std::string_view Name() const override { return "frmCalcSummary"; }

  // Tells on the status bar what to do next.
  void Form_Load();
  void cmdOK_Click();
  // Copies the source duty to the clipboard and shows it as the command's tip.
  void cmdClip_Click();

  std::string Caption;
  std::string Heading;  // the project's title, or the result line of a calculation
  std::string Text;
  std::string ClipTip;
  bool ShowsCalculationCommands;  // cmdClip, cmdCopyToCSV, cmdCSVconfiger, cmdSaveData
  bool ShowsOptimise = false;     // cmdOptimise: for the caller to set where it can work

 private:
  Session& session_;
};

}  // namespace zeb
