#include "project/head_code_library.h"

#include <algorithm>
#include <cstddef>

#include "project/head_codes.h"
#include "services/file_writing.h"
#include "services/number_text.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kLineWidth = 30;
constexpr std::size_t kOrificeWidth = 4;
constexpr int kLastTwoDigitPosition = 99;

// A line of another list under a new number, its fields in their columns again.
std::string Renumbered(const std::string& line, int position) {
  std::string fields = Trim(BehindHeadCodeNumber(line));
  const std::size_t orifice = std::min(fields.find(' '), fields.size());
  if (orifice < kOrificeWidth) fields.insert(0, kOrificeWidth - orifice, ' ');
  if (position > kLastTwoDigitPosition) fields.insert(0, 1, ' ');
  return PadOrCut(FormatDigits(position, 2) + " " + fields, kLineWidth);
}

}  // namespace

void AppendHeadCodeLibrary(Session& session, const std::string& path) {
  for (const std::string& line : SplitLines(session.platform.files.ReadFile(path))) {
    AppendHeadCodeLine(session.project, Renumbered(line, session.project.HeadCodeCount + 1));
  }
}

void WriteHeadCodeLibrary(Session& session, const std::string& path) {
  std::string text;
  for (int code = 1; code <= session.project.HeadCodeCount; ++code) {
    text += session.project.HeadCodeLines[code] + std::string(kLineBreak);
  }
  WriteFileSafely(session.platform.files, path, text);
}

}  // namespace zeb
