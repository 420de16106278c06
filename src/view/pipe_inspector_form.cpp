#include "view/pipe_inspector_form.h"

#include "view/pipe_highlight.h"

namespace zeb {

void PipeInspectorForm::munInspect() {
  Shell& shell = session_.platform.shell;
  shell.SetPanel(Panel::kMode, "View - Pipe Prop");
  if (!open_) {
    open_ = true;
    shell.Open(*this);
  }
  SetData(session_.project.PickedPipe);
}

void PipeInspectorForm::SetData(int pipe) {
  if (!open_) return;
  Project& project = session_.project;
  HighlightPipe(project, surface_, pipe);
  Rows = pipe > 0 ? PipeProperties(project, pipe) : std::vector<PipeProperty>();
  session_.platform.shell.Refresh(*this);
}

}  // namespace zeb
