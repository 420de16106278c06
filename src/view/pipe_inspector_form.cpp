#include "view/pipe_inspector_form.h"

#include <utility>

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
  pipe_ = pipe;
  HighlightPipe(project, surface_, pipe);
  Rows = pipe > 0 ? PipeProperties(project, pipe) : std::vector<PipeProperty>();
  session_.platform.shell.Refresh(*this);
}

void PipeInspectorForm::Renew() {
  if (!open_) return;
  std::vector<PipeProperty> rows;
  if (IsInNetwork(session_.project, pipe_)) rows = PipeProperties(session_.project, pipe_);
  if (rows == Rows) return;
  Rows = std::move(rows);
  session_.platform.shell.Refresh(*this);
}

}  // namespace zeb
