#pragma once

#include <string>

#include "platform/platform.h"

namespace zeb {

// The path of the file in `folder` that is called `name`, upper or lower case apart: the one of
// exactly that name, else the one that matches; when several match, the one that the user agrees
// to. Without a match it is the folder and the name as given.
[[nodiscard]] std::string FindFileNoCase(const Platform& platform, const std::string& folder,
                                         const std::string& name);

}  // namespace zeb
