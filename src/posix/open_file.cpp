#include "posix/open_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <utility>

#include "model/failure.h"
#include "posix/system_failure.h"
#include "services/paths.h"

namespace zeb {
namespace {

constexpr mode_t kNewFileMode = 0666;  // less what the user's mask takes

// Repeats a system call that a signal interrupted.
template <class Call>
auto Repeat(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

bool FolderIsMissing(const std::string& path) {
  struct stat status {};
  const std::string folder = ReturnFolder(path);
  return !folder.empty() && stat(folder.c_str(), &status) != 0;
}

// Opening must not wait for the other end of a pipe.
int Open(const std::string& path, int flags) {
  if (path.empty() || path.find('\0') != std::string::npos) {
    throw RuntimeFailure(failure::kBadFileName);
  }
  const int descriptor = Repeat(
      [&] { return open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, kNewFileMode); });
  if (descriptor >= 0) return descriptor;
  const int error = errno;
  if (error == ENOENT && FolderIsMissing(path)) throw RuntimeFailure(failure::kPathNotFound);
  throw RuntimeFailure(FailureNumber(error));
}

}  // namespace

OpenFile::OpenFile(const std::string& native_path, int flags)
    : descriptor_(Open(native_path, flags)) {}

OpenFile::~OpenFile() {
  if (descriptor_ >= 0) close(descriptor_);
}

void OpenFile::RequireRegular() const {
  struct stat status {};
  CheckCall(fstat(descriptor_, &status));
  if (!S_ISREG(status.st_mode)) throw RuntimeFailure(failure::kPathFileAccess);
}

std::string OpenFile::ReadAll() const {
  std::string bytes;
  std::array<char, 65536> buffer{};
  while (true) {
    const ssize_t count = Repeat([&] { return read(descriptor_, buffer.data(), buffer.size()); });
    CheckCall(count);
    if (count == 0) return bytes;
    bytes.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

void OpenFile::Truncate() const {
  CheckCall(Repeat([&] { return ftruncate(descriptor_, 0); }));
}

void OpenFile::WriteAll(std::string_view bytes) const {
  while (!bytes.empty()) {
    const ssize_t count = Repeat([&] { return write(descriptor_, bytes.data(), bytes.size()); });
    CheckCall(count);
    if (count == 0) throw RuntimeFailure(failure::kDiskFull);
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

void OpenFile::Flush() const {
  const int result = Repeat([&] { return fsync(descriptor_); });
  if (result < 0 && errno != EINVAL && errno != ENOTSUP && errno != ENOSYS) CheckError(errno);
}

void OpenFile::Close() {
  const int result = close(std::exchange(descriptor_, -1));
  if (result < 0 && errno != EINTR) CheckError(errno);
}

}  // namespace zeb
