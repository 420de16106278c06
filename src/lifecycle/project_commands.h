#pragma once

#include <string>

#include "services/session.h"

namespace zeb {

// New: an untitled project with the head codes of the library, and the form for its items.
void Fnew(Session& session);

// Open, by the dialog.
void Fopen(Session& session);

// Opens a file that was picked otherwise: a recent file, or one dropped on the window.
void OpenProjectFile(Session& session, const std::string& path);

// The rule for each time the main window comes to the front. True when the form for the first
// node, frmStartNode, is to be opened.
[[nodiscard]] bool Form_Activate(Session& session);

}  // namespace zeb
