#include "services/ini_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <optional>
#include <string_view>

#include "services/component_failure.h"
#include "services/file_writing.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

[[noreturn]] void Fail(std::string_view reason) {
  throw ComponentFailure(failure::kIniFile, "CIniFile", reason);
}

std::string_view Bare(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

bool SameName(std::string_view a, std::string_view b) {
  return UpperCase(Bare(a)) == UpperCase(Bare(b));
}

bool IsQuoted(std::string_view value) {
  return value.size() >= 2 && value.front() == '"' && value.back() == '"';
}

// Blanks at the ends of a value only survive between quotes.
std::string Written(std::string_view value) {
  std::string line(value);
  std::replace(line.begin(), line.end(), '\r', ' ');
  std::replace(line.begin(), line.end(), '\n', ' ');
  const bool needs_quotes = Bare(line).size() != line.size() || IsQuoted(line);
  return needs_quotes ? '"' + line + '"' : line;
}

std::string Unquoted(std::string_view value) {
  return std::string(IsQuoted(value) ? value.substr(1, value.size() - 2) : value);
}

std::optional<std::string_view> SectionOf(std::string_view line) {
  line = Bare(line);
  if (line.empty() || line.front() != '[') return std::nullopt;
  return Bare(line.substr(1, line.find(']') - 1));
}

struct KeyAndValue {
  std::string_view key;
  std::string_view value;
};

std::optional<KeyAndValue> KeyOf(std::string_view line) {
  line = Bare(line);
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos || line.front() == ';') return std::nullopt;
  return KeyAndValue{Bare(line.substr(0, equals)), Bare(line.substr(equals + 1))};
}

void CheckSection(std::string_view section) {
  if (Bare(section).empty() || section.find_first_of("]\r\n") != std::string_view::npos) {
    Fail("Invalid section");
  }
}

void CheckKey(std::string_view key) {
  const std::string_view bare = Bare(key);
  if (bare.empty() || bare.front() == ';' || bare.front() == '[' ||
      bare.find_first_of("=\r\n") != std::string_view::npos) {
    Fail("Invalid key");
  }
}

using Lines = std::vector<std::string>;

// Calls `visit(index, key and value)` for each key line of a section until it answers true.
template <class Visit>
void VisitKeys(const Lines& lines, std::string_view section, Visit visit) {
  bool inside = false;
  for (std::size_t index = 0; index < lines.size(); ++index) {
    if (const auto name = SectionOf(lines[index])) {
      inside = SameName(*name, section);
    } else if (const auto entry = KeyOf(lines[index]); entry && inside) {
      if (visit(index, *entry)) return;
    }
  }
}

std::optional<std::size_t> FindKey(const Lines& lines, std::string_view section,
                                   std::string_view key) {
  std::optional<std::size_t> found;
  VisitKeys(lines, section, [&](std::size_t index, const KeyAndValue& entry) {
    if (SameName(entry.key, key)) found = index;
    return found.has_value();
  });
  return found;
}

std::optional<std::size_t> FindSection(const Lines& lines, std::string_view section) {
  for (std::size_t index = 0; index < lines.size(); ++index) {
    const auto name = SectionOf(lines[index]);
    if (name && SameName(*name, section)) return index;
  }
  return std::nullopt;
}

std::size_t SectionEnd(const Lines& lines, std::size_t header) {
  std::size_t end = header + 1;
  while (end < lines.size() && !SectionOf(lines[end])) ++end;
  return end;
}

// Puts a key line behind the last one of its section, which is made when there is none.
void AddKey(Lines& lines, const std::string& section, const std::string& line) {
  const auto header = FindSection(lines, section);
  if (!header) {
    lines.push_back("[" + std::string(Bare(section)) + "]");
    lines.push_back(line);
    return;
  }
  std::size_t end = SectionEnd(lines, *header);
  while (Bare(lines[end - 1]).empty()) --end;
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(end), line);
}

Lines ReadLines(FileSystem& files, const std::string& path) {
  if (path.empty()) Fail("Object not properly initialized");
  if (!files.FileExists(path)) Fail("File not found");
  return SplitLines(files.ReadFile(path));
}

void WriteLines(FileSystem& files, const std::string& path, const Lines& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes.append(line).append(kLineBreak);
  WriteFileSafely(files, path, bytes);
}

std::optional<std::string> FindValue(FileSystem& files, const std::string& path,
                                     const std::string& section, const std::string& key) {
  const Lines lines = ReadLines(files, path);
  CheckSection(section);
  CheckKey(key);
  const auto found = FindKey(lines, section, key);
  if (!found) return std::nullopt;
  return Unquoted(KeyOf(lines[*found])->value);
}

}  // namespace

void CIniFile::Init(const std::string& path) {
  if (Bare(path).empty()) Fail("Invalid file name");
  path_ = path;
}

bool CIniFile::HasKey(const std::string& section, const std::string& key) {
  return FindValue(files_, path_, section, key).has_value();
}

std::string CIniFile::GetStringValue(const std::string& section, const std::string& key,
                                     const std::string& default_value) {
  return FindValue(files_, path_, section, key).value_or(default_value);
}

double CIniFile::GetNumericValue(const std::string& section, const std::string& key,
                                 double default_value) {
  const auto value = FindValue(files_, path_, section, key);
  return value ? Val(*value) : default_value;
}

void CIniFile::SaveStringValue(const std::string& section, const std::string& key,
                               const std::string& value) {
  Lines lines = ReadLines(files_, path_);
  CheckSection(section);
  CheckKey(key);
  const std::string line = std::string(Bare(key)) + "=" + Written(value);
  const auto found = FindKey(lines, section, key);
  if (found && lines[*found] == line) return;
  if (found) {
    lines[*found] = line;
  } else {
    AddKey(lines, section, line);
  }
  WriteLines(files_, path_, lines);
}

void CIniFile::SaveNumericValue(const std::string& section, const std::string& key, double value) {
  std::array<char, 32> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  SaveStringValue(section, key, {buffer.data(), result.ptr});
}

void CIniFile::DeleteKey(const std::string& section, const std::string& key) {
  Lines lines = ReadLines(files_, path_);
  CheckSection(section);
  CheckKey(key);
  const auto found = FindKey(lines, section, key);
  if (!found) return;
  lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(*found));
  WriteLines(files_, path_, lines);
}

void CIniFile::DeleteSection(const std::string& section) {
  Lines lines = ReadLines(files_, path_);
  CheckSection(section);
  const auto header = FindSection(lines, section);
  if (!header) return;
  const auto first = lines.begin() + static_cast<std::ptrdiff_t>(*header);
  const auto last = lines.begin() + static_cast<std::ptrdiff_t>(SectionEnd(lines, *header));
  lines.erase(first, last);
  WriteLines(files_, path_, lines);
}

std::vector<std::string> CIniFile::EnumerateAllKeys(const std::string& section) {
  const Lines lines = ReadLines(files_, path_);
  CheckSection(section);
  std::vector<std::string> keys;
  VisitKeys(lines, section, [&](std::size_t, const KeyAndValue& entry) {
    keys.emplace_back(entry.key);
    return false;
  });
  return keys;
}

std::vector<std::string> CIniFile::EnumerateAllSections() {
  const Lines lines = ReadLines(files_, path_);
  std::vector<std::string> sections;
  for (const std::string& line : lines) {
    if (const auto name = SectionOf(line)) sections.emplace_back(*name);
  }
  return sections;
}

}  // namespace zeb
