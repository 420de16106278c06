#include "services/text.h"

#include <algorithm>
#include <cstddef>

namespace zeb {
namespace {

char UpperCaseLetter(char letter) {
  const auto code = static_cast<unsigned char>(letter);
  const bool ascii = code >= 'a' && code <= 'z';
  const bool accented = code >= 0xE0 && code != 0xF7 && code != 0xFF;
  if (ascii || accented) return static_cast<char>(code - 0x20);
  switch (code) {
    case 0x9A:  // s with caron
    case 0x9C:  // oe
    case 0x9E:  // z with caron
      return static_cast<char>(code - 0x10);
    case 0xFF:  // y with diaeresis
      return static_cast<char>(0x9F);
    default:
      return letter;
  }
}

std::string_view TrimmedLeft(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string_view TrimmedRight(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::size_t Count(int length) { return static_cast<std::size_t>(std::max(length, 0)); }

}  // namespace

std::string UpperCase(std::string_view text) {
  std::string upper(text);
  std::transform(upper.begin(), upper.end(), upper.begin(), UpperCaseLetter);
  return upper;
}

std::string Trim(std::string_view text) { return std::string(TrimmedLeft(TrimmedRight(text))); }
std::string TrimLeft(std::string_view text) { return std::string(TrimmedLeft(text)); }
std::string TrimRight(std::string_view text) { return std::string(TrimmedRight(text)); }

std::string Mid(std::string_view text, int start, int length) {
  const std::size_t from = std::min(Count(start - 1), text.size());
  return std::string(text.substr(from, Count(length)));
}

std::string Mid(std::string_view text, int start) {
  return std::string(text.substr(std::min(Count(start - 1), text.size())));
}

std::string Left(std::string_view text, int length) {
  return std::string(text.substr(0, Count(length)));
}

std::string Right(std::string_view text, int length) {
  return std::string(text.substr(text.size() - std::min(Count(length), text.size())));
}

std::string PadOrCut(std::string_view text, int width) {
  std::string padded = Left(text, width);
  padded.resize(Count(width), ' ');
  return padded;
}

bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

bool ContainsNoCase(std::string_view text, std::string_view part) {
  return Contains(UpperCase(text), UpperCase(part));
}

bool StartsWithNoCase(std::string_view text, std::string_view start) {
  return UpperCase(text.substr(0, start.size())) == UpperCase(start);
}

std::vector<std::string> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string> parts;
  while (true) {
    const std::size_t end = text.find(separator);
    parts.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + separator.size());
  }
}

std::vector<std::string> SplitLines(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("\r\n");
    lines.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + (text.substr(end, 2) == kLineBreak ? 2 : 1));
  }
  return lines;
}

std::string ReplaceAll(std::string text, std::string_view from, std::string_view to) {
  if (from.empty()) return text;
  for (std::size_t at = text.find(from); at != std::string::npos;
       at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
  return text;
}

}  // namespace zeb
