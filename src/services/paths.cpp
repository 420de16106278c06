#include "services/paths.h"

#include <algorithm>
#include <cstddef>
#include <vector>

#include "services/text.h"

namespace zeb {
namespace {

constexpr std::string_view kSeparators = "/\\";

std::string_view WithoutEndSeparators(std::string_view folder) {
  return folder.substr(0, folder.find_last_not_of(kSeparators) + 1);
}

std::size_t NameStart(std::string_view path) { return path.find_last_of(kSeparators) + 1; }

// A folder or the name within a path, with the separators behind it.
struct Part {
  std::string name;
  std::string separators;
};

std::vector<Part> PartsOf(std::string_view path) {
  std::vector<Part> parts;
  while (!path.empty()) {
    const std::size_t name_end = std::min(path.find_first_of(kSeparators), path.size());
    const std::size_t end = std::min(path.find_first_not_of(kSeparators, name_end), path.size());
    parts.push_back({std::string(path.substr(0, name_end)),
                     std::string(path.substr(name_end, end - name_end))});
    path.remove_prefix(end);
  }
  return parts;
}

std::string Joined(const std::vector<Part>& parts) {
  std::string path;
  for (const Part& part : parts) path += part.name + part.separators;
  return path;
}

}  // namespace

std::string AddBackSlash(std::string_view folder) {
  if (folder.empty()) return {};
  return std::string(WithoutEndSeparators(folder)) + "/";
}

std::string ReturnFileName(std::string_view path) {
  return std::string(path.substr(NameStart(path)));
}

std::string ReturnFolder(std::string_view path) {
  const std::string_view folder = path.substr(0, NameStart(path));
  const std::string_view bare = WithoutEndSeparators(folder);
  return std::string(bare.empty() ? folder.substr(0, 1) : bare);
}

std::string ChangeFileExt(std::string_view path, std::string_view extension) {
  const std::size_t point = path.find_last_of('.');
  const bool in_name = point != std::string_view::npos && point >= NameStart(path);
  std::string changed(in_name ? path.substr(0, point) : path);
  if (!extension.empty()) changed.append(".").append(extension);
  return changed;
}

std::string ShortPath(std::string_view path, int length) {
  const auto limit = static_cast<std::size_t>(std::max(length, 0));
  std::vector<Part> parts = PartsOf(path);
  const std::size_t head = !parts.empty() && parts.front().name.empty() ? 2 : 1;
  std::size_t size = path.size();
  for (std::size_t middle = head; middle + 1 < parts.size() && size > limit; ++middle) {
    size = size - parts[middle].name.size() + 2;
    parts[middle].name = "..";
  }
  return Joined(parts);
}

bool SamePathNoCase(std::string_view a, std::string_view b) {
  const auto plain = [](std::string_view path) {
    return ReplaceAll(UpperCase(WithoutEndSeparators(path)), "\\", "/");
  };
  return plain(a) == plain(b);
}

}  // namespace zeb
