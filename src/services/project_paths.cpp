#include "services/project_paths.h"

#include <vector>

#include "services/find_file.h"
#include "services/paths.h"
#include "services/text.h"

namespace zeb {
namespace {

using Names = std::vector<std::string> (FileSystem::*)(const std::string&);
using Paths = std::vector<std::string>;

// The entries of some folders that are called `name`, upper or lower case apart.
Paths Matches(FileSystem& files, Names names, const Paths& folders, const std::string& name) {
  Paths matches;
  for (const std::string& folder : folders) {
    for (const std::string& found : NamesNoCase((files.*names)(folder), name)) {
      matches.push_back(AddBackSlash(folder) + found);
    }
  }
  return matches;
}

// The folders that match, from the root down; a folder that exists need not be listed.
Paths MatchingFolders(FileSystem& files, const std::string& folder) {
  const std::string name = ReturnFileName(folder);
  if (name.empty()) return {folder};
  const Paths parents = MatchingFolders(files, ReturnFolder(folder));
  Paths matches = Matches(files, &FileSystem::FolderNames, parents, name);
  if (matches.empty() && files.FolderExists(folder)) matches.push_back(folder);
  return matches;
}

}  // namespace

void RememberRealPath(Session& session, const std::string& typed) {
  session.RealPaths[UpperCase(typed)] = typed;
}

std::string RealPath(Session& session, const std::string& stated) {
  const auto picked = session.RealPaths.find(UpperCase(stated));
  if (picked != session.RealPaths.end()) return picked->second;
  FileSystem& files = session.platform.files;
  if (files.FileExists(stated)) return stated;

  const std::string name = ReturnFileName(stated);
  const Paths folders = MatchingFolders(files, ReturnFolder(stated));
  const Paths matches = Matches(files, &FileSystem::FileNames, folders, name);
  std::string agreed = AgreedFile(session.platform.dialogs, name, matches);
  if (!agreed.empty()) {
    RememberRealPath(session, agreed);
    return agreed;
  }
  return folders.size() == 1 ? AddBackSlash(folders.front()) + name : stated;
}

std::string RealProjectPath(Session& session) {
  return RealPath(session, session.project.ProjectPath);
}

}  // namespace zeb
