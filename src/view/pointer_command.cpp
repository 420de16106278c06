#include "view/pointer_command.h"

#include "project/head_selection.h"
#include "view/draw_view.h"
#include "view/pipe_details_form.h"
#include "view/pointer_modes.h"

namespace zeb {
namespace {

constexpr PointerCommand kViewCommand{
    .mode = pointer_mode::kView,
    .word = "VIEW",
    .hint = "click mouse near centre of a pipe to review its information",
    .pointer = PicturePointer::kCross};

}  // namespace

void EnterPointerCommand(Session& session, const PointerCommand& command) {
  Shell& shell = session.platform.shell;
  session.project.CommandMode = command.mode;
  shell.SetPanel(Panel::kMode, std::string(command.word));
  shell.SetPicturePointer(command.pointer);
  ShowHint(session, command.hint);
}

void ShowHint(Session& session, std::string_view hint) {
  session.project.ViewHint = hint;
  ShowViewTitle(session);
}

void ViewCommandReset(Session& session) {
  session.project.PickedPipe = 0;
  session.project.MarkedNode = 0;
  EnterPointerCommand(session, kViewCommand);
  session.platform.shell.CloseNamed(kPipeDetailsName);
}

void Dview(Session& session) {
  LeaveHeadSelection(session);
  ViewCommandReset(session);
}

}  // namespace zeb
