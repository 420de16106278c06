#include "batch/console_shell.h"

#include "batch/console_text.h"
#include "calc/calc_options_form.h"
#include "calc/sizing_form.h"
#include "project/fault_report.h"
#include "services/number_text.h"

namespace zeb {
namespace {

void PutIfGiven(const std::optional<std::string>& given, std::string& field) {
  if (given) field = *given;
}

// A check goes on after each fault, as nobody is there to mend it.
void AnswerWarning(WarningForm& form) {
  PrintError(form.Caption);
  for (const std::string& text : {form.Location, form.Problem, form.Reason, form.Correction}) {
    PrintError("  " + text);
  }
  form.cbut_Click();
}

void AnswerCalcOptions(CalcOptionsForm& form, const BatchOptions& options) {
  PutIfGiven(options.min_vel, form.ot[0]);
  PutIfGiven(options.max_vel, form.ot[1]);
  PutIfGiven(options.max_pd, form.ot[2]);
  PutIfGiven(options.mrh_node, form.ot[3]);
  form.OK_Click();
  if (!form.Accepted()) form.Cancel_Click();
}

void ChooseSizingMethod(SizingForm& form, int method) {
  if (method == 1) form.Option1_Click();
  if (method == 2) form.Option2_Click();
  if (method == 3) form.Option3_Click();
}

void AnswerSizing(SizingForm& form, const BatchOptions& options) {
  if (options.sizing_method) ChooseSizingMethod(form, *options.sizing_method);
  PutIfGiven(options.max_vel, form.ot[0]);
  PutIfGiven(options.sizing_pd, form.ot[1]);
  PutIfGiven(options.sizing_drop, form.ot[2]);
  PutIfGiven(options.sizing_min, form.ot[3]);
  form.OK_Click();
  if (!form.Accepted()) form.Cancel_Click();
}

}  // namespace

void ConsoleShell::ShowModal(Form& form) {
  if (auto* warning = dynamic_cast<WarningForm*>(&form)) {
    AnswerWarning(*warning);
  } else if (auto* calc_options = dynamic_cast<CalcOptionsForm*>(&form)) {
    AnswerCalcOptions(*calc_options, options_);
  } else if (auto* sizing = dynamic_cast<SizingForm*>(&form)) {
    AnswerSizing(*sizing, options_);
  }
}

}  // namespace zeb
