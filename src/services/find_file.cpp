#include "services/find_file.h"

#include <vector>

#include "services/paths.h"
#include "services/text.h"

namespace zeb {
namespace {

std::vector<std::string> MatchesOf(FileSystem& files, const std::string& folder,
                                   const std::string& name) {
  std::vector<std::string> matches;
  const std::string wanted = UpperCase(name);
  for (const std::string& found : files.FileNames(folder)) {
    if (UpperCase(found) == wanted) matches.push_back(found);
  }
  return matches;
}

bool UserAgrees(Dialogs& dialogs, const std::string& name, const std::string& match) {
  return dialogs.Show({.title = name,
                       .text = "Several files differ from this name only in upper and lower case. "
                               "Do you want to use " +
                               match + "?",
                       .icon = MessageIcon::kQuestion,
                       .buttons = MessageButtons::kYesNo,
                       .default_button = 2}) == Answer::kYes;
}

}  // namespace

std::string FindFileNoCase(const Platform& platform, const std::string& folder,
                           const std::string& name) {
  std::string stated = AddBackSlash(folder) + name;
  if (platform.files.FileExists(stated)) return stated;
  const std::vector<std::string> matches = MatchesOf(platform.files, folder, name);
  for (const std::string& match : matches) {
    if (matches.size() == 1 || UserAgrees(platform.dialogs, name, match)) {
      return AddBackSlash(folder) + match;
    }
  }
  return stated;
}

}  // namespace zeb
