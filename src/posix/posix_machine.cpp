#include "posix/posix_machine.h"

#include <pwd.h>
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string_view>
#include <system_error>

#include "posix/path_text.h"
#include "posix/trash.h"
#include "posix/xdg_folders.h"

namespace zeb {
namespace {

// Names of the user and the computer are read into a place of this size; a longer one counts as
// unknown.
constexpr std::size_t kNameBuffer = 80;

std::string NameText(std::string_view name) {
  return name.size() < kNameBuffer ? PathText(name) : std::string();
}

}  // namespace

std::string PosixMachine::UserName() {
  const passwd* user = getpwuid(geteuid());  // NOLINT(concurrency-mt-unsafe)
  return user == nullptr ? std::string() : NameText(user->pw_name);
}

std::string PosixMachine::ComputerName() {
  std::array<char, 256> name{};
  return gethostname(name.data(), name.size() - 1) == 0 ? NameText(name.data()) : std::string();
}

std::string PosixMachine::ExecutableFolder() {
  std::error_code error;
  return PathText(std::filesystem::read_symlink("/proc/self/exe", error).parent_path().native());
}

std::string PosixMachine::DocumentsFolder() {
  return PathText(UserFolder("XDG_DOCUMENTS_DIR", "Documents").native());
}

std::string PosixMachine::ConfigFolder() { return PathText(ConfigHome().native()); }

std::string PosixMachine::DesktopFolder() {
  return PathText(UserFolder("XDG_DESKTOP_DIR", "Desktop").native());
}

std::string PosixMachine::Environment(const std::string& name) {
  const char* value = std::getenv(name.c_str());  // NOLINT(concurrency-mt-unsafe)
  return value == nullptr ? std::string() : PathText(value);
}

void PosixMachine::MoveToTrash(const std::string& path) { MoveFileToTrash(NativePath(path)); }

std::string PosixMachine::NewIdentifier() {
  constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
  constexpr int kLength = 20;
  std::random_device random;
  std::uniform_int_distribution<std::size_t> pick(0, kLetters.size() - 1);
  std::string identifier;
  for (int count = 0; count < kLength; ++count) identifier += kLetters[pick(random)];
  return identifier;
}

}  // namespace zeb
