#include "services/find_file.h"

#include "services/paths.h"
#include "services/text.h"

namespace zeb {
namespace {

bool UserTakes(Dialogs& dialogs, const std::string& name, const std::string& match) {
  return UserAgrees(dialogs, name,
                    "Several files differ from this name only in upper and lower case. Do you want "
                    "to use " +
                        match + "?",
                    2);
}

}  // namespace

std::string FindFileNoCase(const Platform& platform, const std::string& folder,
                           const std::string& name) {
  std::string stated = AddBackSlash(folder) + name;
  if (platform.files.FileExists(stated)) return stated;
  const std::vector<std::string> matches = NamesNoCase(platform.files.FileNames(folder), name);
  const std::string agreed = AgreedFile(platform.dialogs, name, matches);
  return agreed.empty() ? stated : AddBackSlash(folder) + agreed;
}

std::vector<std::string> NamesNoCase(std::vector<std::string> names, const std::string& name) {
  const std::string wanted = UpperCase(name);
  std::erase_if(names, [&](const std::string& found) { return UpperCase(found) != wanted; });
  return names;
}

std::string AgreedFile(Dialogs& dialogs, const std::string& name,
                       const std::vector<std::string>& matches) {
  for (const std::string& match : matches) {
    if (matches.size() == 1 || UserTakes(dialogs, name, match)) return match;
  }
  return {};
}

}  // namespace zeb
