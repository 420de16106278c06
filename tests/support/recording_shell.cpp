#include "support/recording_shell.h"

namespace zeb::test {

void RecordingShell::Redraw() {
  ++redraws;
  if (on_redraw) on_redraw();
}

int RecordingShell::ShowPopup(const std::vector<std::string>& entries, int ticked) {
  popups.push_back({entries, ticked});
  if (popup_answers.empty()) return -1;
  const int picked = popup_answers.front();
  popup_answers.pop_front();
  return picked;
}

void RecordingShell::Yield() {
  ++yields;
  if (on_yield) on_yield();
}

void RecordingShell::ShowModal(Form& form) {
  modal_forms.emplace_back(form.Name());
  RunHook(form);
}

void RecordingShell::Open(Form& form) {
  open_forms.emplace_back(form.Name());
  RunHook(form);
}

void RecordingShell::RunHook(Form& form) {
  const auto hook = hooks_.find(form.Name());
  if (hook != hooks_.end()) hook->second(form);
}

}  // namespace zeb::test
