#pragma once

#include <string>
#include <vector>

#include "platform/platform.h"

namespace zeb {

// The path of the file in `folder` that is called `name`, upper or lower case apart: the one of
// exactly that name, else the one that matches; when several match, the one that the user agrees
// to. Without a match it is the folder and the name as given.
[[nodiscard]] std::string FindFileNoCase(const Platform& platform, const std::string& folder,
                                         const std::string& name);

// Those of `names` that are `name`, upper or lower case apart.
[[nodiscard]] std::vector<std::string> NamesNoCase(std::vector<std::string> names,
                                                   const std::string& name);

// Of files that differ only in upper and lower case the one that the user agrees to; empty when
// there is none or he agrees to none. A single one needs no question.
[[nodiscard]] std::string AgreedFile(Dialogs& dialogs, const std::string& name,
                                     const std::vector<std::string>& matches);

}  // namespace zeb
