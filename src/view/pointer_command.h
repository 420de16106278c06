#pragma once

#include <string>
#include <string_view>

#include "platform/shell.h"
#include "services/session.h"

namespace zeb {

// A command that waits for the pointer on the picture: its mode, its word and hint on the status
// bar, and the pointer's shape.
struct PointerCommand {
  int mode = 0;
  std::string_view word;
  std::string_view hint;
  PicturePointer pointer = PicturePointer::kDefault;
};

void EnterPointerCommand(Session& session, const PointerCommand& command);

// Shows a new hint behind the view's title.
void ShowHint(Session& session, std::string_view hint);

// Back to the default command, with which a click shows a pipe; its window is closed.
void ViewCommandReset(Session& session);

// The user's way back to it, which also leaves the picking of heads.
void Dview(Session& session);

}  // namespace zeb
