#include "support/memory_file_system.h"

#include "model/failure.h"
#include "services/paths.h"

namespace zeb::test {
namespace {

std::string Bare(const std::string& folder) {
  return folder.size() > 1 && folder.back() == '/' ? folder.substr(0, folder.size() - 1) : folder;
}

// The names right below a folder, of a range of paths.
template <class Paths, class PathOf>
std::vector<std::string> NamesIn(const std::string& folder, const Paths& paths, PathOf path_of) {
  std::vector<std::string> names;
  for (const auto& entry : paths) {
    const std::string& path = path_of(entry);
    if (path != "/" && ReturnFolder(path) == Bare(folder)) names.push_back(ReturnFileName(path));
  }
  return names;
}

}  // namespace

void MemoryFileSystem::Put(const std::string& path, const std::string& bytes) {
  PutFolder(ReturnFolder(path));
  files_[path] = bytes;
  times_[path] = now;
}

void MemoryFileSystem::PutFolder(const std::string& folder) {
  for (std::string path = Bare(folder); !path.empty() && path != "/"; path = ReturnFolder(path)) {
    folders_.insert(path);
  }
}

std::string MemoryFileSystem::Bytes(const std::string& path) const {
  const auto file = files_.find(path);
  return file == files_.end() ? std::string() : file->second;
}

std::vector<std::string> MemoryFileSystem::AllFiles() const {
  std::vector<std::string> paths;
  for (const auto& [path, bytes] : files_) paths.push_back(path);
  return paths;
}

void MemoryFileSystem::FailAt(int n, int number) { Plan(n, number, false); }
void MemoryFileSystem::KillAt(int n) { Plan(n, 0, true); }
void MemoryFileSystem::StopFailing() { Plan(0, 0, false); }

void MemoryFileSystem::Plan(int at, int number, bool kill) {
  operations_ = 0;
  fail_at_ = at;
  fail_number_ = number;
  kill_ = kill;
  killed_ = false;
}

void MemoryFileSystem::CheckAlive() const {
  if (killed_) throw Killed();
}

bool MemoryFileSystem::FailsNow() {
  CheckAlive();
  return ++operations_ == fail_at_;
}

void MemoryFileSystem::Fail() {
  killed_ = kill_;
  CheckAlive();
  throw RuntimeFailure(fail_number_);
}

void MemoryFileSystem::Count() {
  if (FailsNow()) Fail();
}

bool MemoryFileSystem::FileExists(const std::string& path) {
  CheckAlive();
  return Has(ResolveLinks(path));
}

bool MemoryFileSystem::FolderExists(const std::string& path) {
  CheckAlive();
  return folders_.contains(Bare(path));
}

bool MemoryFileSystem::IsWritable(const std::string& path) {
  CheckAlive();
  const std::string target = ResolveLinks(path);
  return (Has(target) || FolderExists(target)) && !read_only_.contains(Bare(target));
}

std::uint64_t MemoryFileSystem::FileSize(const std::string& path) {
  Count();
  return Existing(path).size();
}

DateTime MemoryFileSystem::FileTime(const std::string& path) {
  Count();
  Existing(path);
  return times_[ResolveLinks(path)];
}

std::vector<std::string> MemoryFileSystem::FileNames(const std::string& folder) {
  CheckAlive();
  return NamesIn(folder, files_, [](const auto& file) -> const std::string& { return file.first; });
}

std::vector<std::string> MemoryFileSystem::FolderNames(const std::string& folder) {
  CheckAlive();
  return NamesIn(folder, folders_,
                 [](const std::string& path) -> const std::string& { return path; });
}

std::string MemoryFileSystem::ResolveLinks(const std::string& path) {
  CheckAlive();
  return path;
}

std::string MemoryFileSystem::ReadFile(const std::string& path) {
  Count();
  return Existing(path);
}

void MemoryFileSystem::WriteFile(const std::string& path, const std::string& bytes) {
  Store(ResolveLinks(path), "", bytes);
}

void MemoryFileSystem::AppendFile(const std::string& path, const std::string& bytes) {
  const std::string target = ResolveLinks(path);
  Store(target, Bytes(target), bytes);
}

void MemoryFileSystem::Store(const std::string& path, const std::string& before,
                             const std::string& bytes) {
  const bool fails = FailsNow();
  CheckTarget(path);
  files_[path] = before + (fails ? bytes.substr(0, bytes.size() / 2) : bytes);
  times_[path] = now;
  if (fails) Fail();
}

void MemoryFileSystem::Rename(const std::string& from, const std::string& to) {
  Count();
  const std::string bytes = Existing(from);
  CheckTarget(to);
  times_[to] = times_[from];
  files_.erase(from);
  files_[to] = bytes;
}

void MemoryFileSystem::FlushFolder(const std::string& folder) {
  Count();
  if (!FolderExists(folder)) throw RuntimeFailure(failure::kPathNotFound);
}

void MemoryFileSystem::Remove(const std::string& path) {
  Count();
  Existing(path);
  CheckTarget(path);
  files_.erase(path);
}

void MemoryFileSystem::MakeFolder(const std::string& folder) {
  Count();
  if (Has(Bare(folder))) throw RuntimeFailure(failure::kPathNotFound);
  PutFolder(folder);
}

std::string& MemoryFileSystem::Existing(const std::string& path) {
  if (FolderExists(path)) throw RuntimeFailure(failure::kPathFileAccess);
  const auto file = files_.find(ResolveLinks(path));
  if (file != files_.end()) return file->second;
  throw RuntimeFailure(folders_.contains(ReturnFolder(path)) ? failure::kFileNotFound
                                                             : failure::kPathNotFound);
}

void MemoryFileSystem::CheckTarget(const std::string& path) const {
  const std::string folder = ReturnFolder(path);
  if (!folders_.contains(folder)) throw RuntimeFailure(failure::kPathNotFound);
  if (folders_.contains(path) || read_only_.contains(path) || read_only_.contains(folder)) {
    throw RuntimeFailure(failure::kPathFileAccess);
  }
}

}  // namespace zeb::test
