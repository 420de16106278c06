#pragma once

#include "services/session.h"

namespace zeb {

// Reads the file that ProjectPath names into PipeLines and HeadCodeLines and stores two undo
// versions. LineCount is the number of text lines with the END line; it is 0, and the user has
// been told why, when the file could not be read. Only a project of more than 5 lines is worth a
// check. With NewProjectFlag at 1 there is no file, and only the common state is set.
void ReadProject(Session& session);

// A result of at most so many lines is no project.
inline constexpr int kFewestLines = 5;

}  // namespace zeb
