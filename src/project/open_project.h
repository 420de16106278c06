#pragma once

#include <string>

#include "services/session.h"

namespace zeb {

// Reads the file of ProjectPath and, when it holds a project, checks it and rewrites clean lines.
void ReadAndCheck(Session& session);

// Opens a project file in place of the open project, whose changes are the caller's to save.
void OpenProject(Session& session, const std::string& path);

// Shows nothing of the open project any more and switches off what works on a checked one.
void LeaveProject(Session& session);

}  // namespace zeb
