#pragma once

#include <string>

#include "services/session.h"

namespace zeb {

// A head code library is a text file of head code lines. All fail as the file system does.

// Appends the lines of a library to the list under new numbers. Fails when the list is full; the
// codes before stay.
void AppendHeadCodeLibrary(Session& session, const std::string& path);

// Writes the list as it stands.
void WriteHeadCodeLibrary(Session& session, const std::string& path);

}  // namespace zeb
