#include "posix/posix_file_system.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <system_error>

#include "model/failure.h"
#include "posix/local_time.h"
#include "posix/open_file.h"
#include "posix/path_text.h"
#include "posix/system_failure.h"
#include "services/paths.h"

namespace zeb {
namespace {

using Status = struct stat;

// Links are followed; empty when nothing is there.
std::optional<Status> StatusOf(const std::string& path) {
  Status status{};
  if (stat(NativePath(path).c_str(), &status) != 0) return std::nullopt;
  return status;
}

Status ExistingFile(const std::string& path) {
  const auto status = StatusOf(path);
  if (!status) {
    const bool folder = StatusOf(ReturnFolder(path)).has_value() || ReturnFolder(path).empty();
    throw RuntimeFailure(folder ? failure::kFileNotFound : failure::kPathNotFound);
  }
  if (!S_ISREG(status->st_mode)) throw RuntimeFailure(failure::kPathFileAccess);
  return *status;
}

// The sorted names in a folder for which `wanted(entry)` holds; a folder that cannot be read has
// none.
template <class Wanted>
std::vector<std::string> NamesIn(const std::string& folder, Wanted wanted) {
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(NativePath(folder), error);
  for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
    if (wanted(*entry)) names.push_back(PathText(entry->path().filename().native()));
  }
  std::sort(names.begin(), names.end());
  return names;
}

bool IsFolder(const std::filesystem::directory_entry& entry) {
  std::error_code error;
  return entry.is_directory(error);
}

bool IsFile(const std::filesystem::directory_entry& entry) {
  std::error_code error;
  return entry.is_regular_file(error);
}

// A file that is made anew in place of another stays as readable and as writable as that one was.
void TakePermissions(const std::string& to, const std::string& from) {
  const auto status = StatusOf(from);
  if (!status || !S_ISREG(status->st_mode)) return;
  constexpr mode_t kPermissions = 0777;
  CheckCall(chmod(NativePath(to).c_str(), status->st_mode & kPermissions));
}

}  // namespace

bool PosixFileSystem::FileExists(const std::string& path) {
  const auto status = StatusOf(path);
  return status && !S_ISDIR(status->st_mode);
}

bool PosixFileSystem::FolderExists(const std::string& path) {
  const auto status = StatusOf(path);
  return status && S_ISDIR(status->st_mode);
}

bool PosixFileSystem::IsWritable(const std::string& path) {
  const auto status = StatusOf(path);
  const bool right_kind = status && (S_ISREG(status->st_mode) || S_ISDIR(status->st_mode));
  return right_kind && access(NativePath(path).c_str(), W_OK) == 0;
}

std::uint64_t PosixFileSystem::FileSize(const std::string& path) {
  return static_cast<std::uint64_t>(ExistingFile(path).st_size);
}

DateTime PosixFileSystem::FileTime(const std::string& path) {
  return LocalTime(ExistingFile(path).st_mtime);
}

std::vector<std::string> PosixFileSystem::FileNames(const std::string& folder) {
  return NamesIn(folder, IsFile);
}

std::vector<std::string> PosixFileSystem::FolderNames(const std::string& folder) {
  return NamesIn(folder, IsFolder);
}

// Also follows a link to a file that is yet to be made.
std::string PosixFileSystem::ResolveLinks(const std::string& path) {
  constexpr int kMostLinks = 40;
  std::filesystem::path target = NativePath(path);
  std::error_code error;
  for (int links = 0; links < kMostLinks; ++links) {
    if (!std::filesystem::is_symlink(target, error)) break;
    target = target.parent_path() / std::filesystem::read_symlink(target, error);
    if (error) return path;
  }
  return PathText(target.native());
}

std::string PosixFileSystem::ReadFile(const std::string& path) {
  const OpenFile file(NativePath(path), O_RDONLY);
  file.RequireRegular();
  return file.ReadAll();
}

void PosixFileSystem::WriteFile(const std::string& path, const std::string& bytes) {
  OpenFile file(NativePath(path), O_WRONLY | O_CREAT);
  file.RequireRegular();
  file.Truncate();
  file.WriteAll(bytes);
  file.Flush();
  file.Close();
}

void PosixFileSystem::AppendFile(const std::string& path, const std::string& bytes) {
  OpenFile file(NativePath(path), O_WRONLY | O_CREAT | O_APPEND);
  file.RequireRegular();
  file.WriteAll(bytes);
  file.Close();
}

void PosixFileSystem::Rename(const std::string& from, const std::string& to) {
  TakePermissions(from, to);
  CheckCall(std::rename(NativePath(from).c_str(), NativePath(to).c_str()));
}

void PosixFileSystem::FlushFolder(const std::string& folder) {
  const std::string path = folder.empty() ? "." : NativePath(folder);
  // A folder that may be written but not listed cannot be opened to flush it.
  if (access(path.c_str(), R_OK) != 0 && errno == EACCES) return;
  OpenFile file(path, O_RDONLY | O_DIRECTORY);
  file.Flush();
  file.Close();
}

void PosixFileSystem::Remove(const std::string& path) {
  CheckCall(unlink(NativePath(path).c_str()));
}

void PosixFileSystem::MakeFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(NativePath(folder), error);
  if (error && !FolderExists(folder)) CheckError(error.value());
}

}  // namespace zeb
