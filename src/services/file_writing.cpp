#include "services/file_writing.h"

#include "model/failure.h"
#include "services/paths.h"

namespace zeb {
namespace {

void RefuseUnwritable(FileSystem& files, const std::string& target) {
  const bool refused =
      files.FolderExists(target) || (files.FileExists(target) && !files.IsWritable(target));
  if (refused) throw RuntimeFailure(failure::kPathFileAccess);
}

// The failure at hand is the one to tell, not that of tidying up.
void RemoveQuietly(FileSystem& files, const std::string& path) {
  try {
    if (files.FileExists(path)) files.Remove(path);
  } catch (const RuntimeFailure&) {
    return;
  }
}

}  // namespace

void WriteFileSafely(FileSystem& files, const std::string& path, const std::string& bytes) {
  const std::string target = files.ResolveLinks(path);
  RefuseUnwritable(files, target);
  const std::string folder = ReturnFolder(target);
  const std::string beside = AddBackSlash(folder) + "." + ReturnFileName(target) + ".new";
  RemoveQuietly(files, beside);  // left by a program that was killed
  try {
    files.WriteFile(beside, bytes);
    files.Rename(beside, target);
  } catch (const RuntimeFailure&) {
    RemoveQuietly(files, beside);
    throw;
  }
  files.FlushFolder(folder);
}

void CopyFileSafely(FileSystem& files, const std::string& from, const std::string& to) {
  WriteFileSafely(files, to, files.ReadFile(from));
}

}  // namespace zeb
