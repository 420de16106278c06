#include "posix/xdg_folders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <fstream>
#include <optional>

namespace zeb {
namespace {

// An environment variable that holds an absolute path.
std::optional<std::filesystem::path> FolderVariable(const char* name) {
  const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe)
  if (value == nullptr || *value != '/') return std::nullopt;
  return value;
}

// The folder in a line such as XDG_DESKTOP_DIR="$HOME/Desktop".
std::optional<std::filesystem::path> FolderIn(std::string_view line, std::string_view key) {
  constexpr std::string_view kHome = "$HOME/";
  const std::string start = std::string(key) + "=\"";
  if (!line.starts_with(start) || !line.ends_with('"')) return std::nullopt;
  const std::string_view value = line.substr(start.size(), line.size() - start.size() - 1);
  if (value.starts_with(kHome)) return HomeFolder() / value.substr(kHome.size());
  if (value.starts_with('/')) return value;
  return std::nullopt;
}

}  // namespace

std::filesystem::path HomeFolder() {
  if (const auto home = FolderVariable("HOME")) return *home;
  const passwd* user = getpwuid(geteuid());  // NOLINT(concurrency-mt-unsafe)
  return user == nullptr ? "/" : user->pw_dir;
}

std::filesystem::path ConfigHome() {
  return FolderVariable("XDG_CONFIG_HOME").value_or(HomeFolder() / ".config");
}

std::filesystem::path DataHome() {
  return FolderVariable("XDG_DATA_HOME").value_or(HomeFolder() / ".local" / "share");
}

std::filesystem::path UserFolder(std::string_view key, const std::string& fallback) {
  std::ifstream folders(ConfigHome() / "user-dirs.dirs");
  for (std::string line; std::getline(folders, line);) {
    if (const auto folder = FolderIn(line, key)) return *folder;
  }
  return HomeFolder() / fallback;
}

}  // namespace zeb
