#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zeb {

inline constexpr std::string_view kLineBreak = "\r\n";

// ASCII and Windows-1252 letters.
[[nodiscard]] std::string UpperCase(std::string_view text);

// Only blanks (code 32) are trimmed.
[[nodiscard]] std::string Trim(std::string_view text);
[[nodiscard]] std::string TrimLeft(std::string_view text);
[[nodiscard]] std::string TrimRight(std::string_view text);

// `length` characters from `start`, which counts from 1; short or empty past the end.
[[nodiscard]] std::string Mid(std::string_view text, int start, int length);
[[nodiscard]] std::string Mid(std::string_view text, int start);
[[nodiscard]] std::string Left(std::string_view text, int length);
[[nodiscard]] std::string Right(std::string_view text, int length);

// Exactly `width` characters: blanks added behind, or cut.
[[nodiscard]] std::string PadOrCut(std::string_view text, int width);

[[nodiscard]] bool Contains(std::string_view text, std::string_view part);
[[nodiscard]] bool ContainsNoCase(std::string_view text, std::string_view part);
[[nodiscard]] bool StartsWithNoCase(std::string_view text, std::string_view start);

[[nodiscard]] std::vector<std::string> Split(std::string_view text, std::string_view separator);
// Lines that end in CR LF, CR or LF; a last line without an end counts, an empty rest does not.
[[nodiscard]] std::vector<std::string> SplitLines(std::string_view text);

[[nodiscard]] std::string ReplaceAll(std::string text, std::string_view from, std::string_view to);

}  // namespace zeb
