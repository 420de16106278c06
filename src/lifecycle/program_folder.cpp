#include "lifecycle/program_folder.h"

#include "services/file_writing.h"
#include "services/paths.h"

namespace zeb {
namespace {

constexpr const char* kAuthorityArchive = "DesignAuth_V2.dat";

bool HoldsData(FileSystem& files, const std::string& folder) {
  return files.FileExists(AddBackSlash(folder) + kAuthorityArchive);
}

// The folder that is set, or the executable's own when it is a portable tree; else empty.
std::string OwnFolder(const Platform& platform) {
  const std::string set = platform.machine.Environment("ZEB_PROGRAM_FOLDER");
  if (!set.empty()) return ReturnFolder(AddBackSlash(set));
  const std::string folder = platform.machine.ExecutableFolder();
  const bool portable = HoldsData(platform.files, folder) && platform.files.IsWritable(folder);
  return portable ? folder : std::string();
}

std::string InstalledFolder(const Platform& platform) {
  return AddBackSlash(ReturnFolder(platform.machine.ExecutableFolder())) + "share/zeb";
}

}  // namespace

std::string FindProgramFolder(const Platform& platform) {
  const std::string own = OwnFolder(platform);
  return own.empty() ? AddBackSlash(platform.machine.ConfigFolder()) + "ZEB/program" : own;
}

std::string FindInstalledData(const Platform& platform) {
  const std::string own = OwnFolder(platform);
  return own.empty() ? InstalledFolder(platform) : own;
}

void SeedProgramFolder(const Platform& platform, const std::string& program_folder) {
  if (OwnFolder(platform) == program_folder) return;
  CopyMissingFiles(platform.files, InstalledFolder(platform), program_folder);
}

void CopyMissingFiles(FileSystem& files, const std::string& from, const std::string& to) {
  if (!files.FolderExists(from)) return;
  if (!files.FolderExists(to)) files.MakeFolder(to);
  for (const std::string& name : files.FileNames(from)) {
    const std::string copy = AddBackSlash(to) + name;
    if (!files.FileExists(copy)) CopyFileSafely(files, AddBackSlash(from) + name, copy);
  }
  for (const std::string& name : files.FolderNames(from)) {
    CopyMissingFiles(files, AddBackSlash(from) + name, AddBackSlash(to) + name);
  }
}

}  // namespace zeb
