#include "calc/unsized_pipes.h"

#include <string>

#include "project/undo_history.h"

namespace zeb {
namespace {

constexpr const char* kTitle = "Auto Pipe Size ";
constexpr const char* kCaptured = "Auto Pipe Size - Unsized pipes captured";
constexpr const char* kZeroed = "All pipes set to 0 mm";

void NoteChange(Session& session, const std::string& description) {
  session.project.DataChanged = 1;
  session.project.UndoDescription = description;
  Revert(session);
}

void CaptureSizes(Session& session) {
  const Project& project = session.project;
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    if (project.PipeUnsized[pipe] != 0) session.platform.commands.ComposePipeLine(pipe);
  }
  NoteChange(session, kCaptured);
}

}  // namespace

bool ZeroAllPipes(Session& session) {
  const Answer answer = session.platform.dialogs.Show(
      {.title = kTitle,
       .text = "This option will remove all pipe sizes from the currant ZEB project? ",
       .icon = MessageIcon::kQuestion,
       .buttons = MessageButtons::kOkCancel});
  if (answer != Answer::kOk) return false;
  Project& project = session.project;
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    project.PipeSize[pipe] = 0;
    project.PipeSizeIndex[pipe] = 0;
    project.PipeUnsized[pipe] = 1;
    session.platform.commands.ComposePipeLine(pipe);
  }
  project.UnsizedCount = project.PipeCount;
  NoteChange(session, kZeroed);
  return true;
}

void mnuCalcZeroPipe_Click(Session& session) {
  if (!ZeroAllPipes(session)) return;
  session.platform.commands.CheckProject(CheckMode::kKeepLines);
  session.platform.shell.SetPanel(Panel::kHint, kZeroed);
}

void mnuCalcSetPipe_Click(Session& session) {
  bool captured = false;
  if (session.project.UnsizedCount > 0) {
    captured = UserAgrees(session.platform.dialogs, kTitle,
                          "Do you wish ZEB to capture the Auto Sized pipes?");
    if (captured) CaptureSizes(session);
  } else {
    session.platform.dialogs.Show({.title = kTitle,
                                   .text = "You do not have any unsized pipes in this project",
                                   .icon = MessageIcon::kInformation});
  }
  session.platform.commands.CheckProject(CheckMode::kKeepLines);
  if (captured) session.platform.shell.SetPanel(Panel::kHint, kCaptured);
}

}  // namespace zeb
