#include "view/pipe_details_form.h"

#include <utility>

#include "view/pipe_details.h"
#include "view/pipe_highlight.h"
#include "view/pipe_properties.h"
#include "view/pointer_command.h"

namespace zeb {

void PipeDetailsForm::ShowPickedPipe() {
  Project& project = session_.project;
  pipe_ = project.PickedPipe;
  HighlightPipe(project, surface_, pipe_);
  Details = ShowPipeDetails(session_, pipe_);
  NextVisible = pipe_ < project.PipeCount;
  PreviousVisible = pipe_ > 1;
  UpStreamVisible = pipe_ > 1;
  Shell& shell = session_.platform.shell;
  if (open_) {
    shell.Refresh(*this);
  } else {
    open_ = true;
    shell.Open(*this);
  }
}

void PipeDetailsForm::Renew() {
  if (!open_) return;
  const bool there = IsInNetwork(session_.project, pipe_);
  std::string details = there ? ShowPipeDetails(session_, pipe_) : std::string();
  if (details == Details) return;
  Details = std::move(details);
  session_.platform.shell.Refresh(*this);
}

void PipeDetailsForm::cmdNext_Click() { StepTo(session_.project.PickedPipe + 1); }

void PipeDetailsForm::cmdPrevious_Click() { StepTo(session_.project.PickedPipe - 1); }

void PipeDetailsForm::cmdUpStream_Click() {
  StepTo(session_.project.PipeUpstream[session_.project.PickedPipe]);
}

void PipeDetailsForm::KeyEscape() {
  session_.platform.shell.Close(*this);
  Form_Unload();
}

// The default command closes this window too, so the second time there is nothing left to do.
void PipeDetailsForm::Form_Unload() {
  if (!open_) return;
  open_ = false;
  ViewCommandReset(session_);
}

void PipeDetailsForm::StepTo(int pipe) {
  if (pipe < 1 || pipe > session_.project.PipeCount) return;
  session_.project.PickedPipe = pipe;
  ShowPickedPipe();
}

}  // namespace zeb
