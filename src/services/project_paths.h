#pragma once

#include <string>

#include "services/session.h"

namespace zeb {

// A project's path is shown, compared and stored in upper case; its file is called what the user
// called it.

// Keeps the path as picked or typed for its stated, upper-cased form.
void RememberRealPath(Session& session, const std::string& typed);

// The file behind a stated path: the one picked in this session, else the file of exactly that
// path, else the one that matches but for upper and lower case, in its folders too. When several
// match, the user is asked, once. A path without a file is one to be made: in the folder that
// matches, under the stated name.
[[nodiscard]] std::string RealPath(Session& session, const std::string& stated);

// The file of the open project.
[[nodiscard]] std::string RealProjectPath(Session& session);

}  // namespace zeb
