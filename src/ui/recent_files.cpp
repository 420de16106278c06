#include "ui/recent_files.h"

#include <algorithm>

#include "services/number_text.h"

namespace zeb {
namespace {

constexpr char kSection[] = "RecentFiles";
constexpr std::size_t kMost = 8;

std::string Key(std::size_t place) { return PlainText(static_cast<int>(place) + 1); }

}  // namespace

std::vector<std::string> RecentFiles::Paths() const {
  std::vector<std::string> paths;
  for (std::size_t place = 0; place < kMost; ++place) {
    const std::string path = session_.settings.GetSetting(kSection, Key(place), "");
    if (!path.empty()) paths.push_back(path);
  }
  return paths;
}

void RecentFiles::Add(const std::string& path) {
  std::vector<std::string> paths = Paths();
  std::erase(paths, path);
  paths.insert(paths.begin(), path);
  Store(paths);
}

void RecentFiles::Remove(const std::string& path) {
  std::vector<std::string> paths = Paths();
  std::erase(paths, path);
  Store(paths);
}

void RecentFiles::Store(const std::vector<std::string>& paths) {
  for (std::size_t place = 0; place < kMost; ++place) {
    const std::string path = place < paths.size() ? paths[place] : "";
    if (session_.settings.GetSetting(kSection, Key(place), "") != path)
      session_.settings.SaveSetting(kSection, Key(place), path);
  }
}

}  // namespace zeb
