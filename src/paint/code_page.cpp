#include "paint/code_page.h"

#include <algorithm>
#include <array>

namespace zeb {
namespace {

// What the bytes 0x80 to 0x9F stand for; five of them stand for themselves.
constexpr std::array<char16_t, 32> kHighControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr int kNoByte = -1;

int ByteOf(char16_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return character;
  const auto* found = std::ranges::find(kHighControls, character);
  if (found == kHighControls.end()) return kNoByte;
  return 0x80 + static_cast<int>(found - kHighControls.begin());
}

}  // namespace

QString ToQt(std::string_view text) {
  QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  std::ranges::transform(text, result.begin(), [](char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return QChar(code >= 0x80 && code < 0xA0 ? kHighControls[code - 0x80U] : char16_t{code});
  });
  return result;
}

std::string FromQt(QStringView text) {
  std::string result;
  result.reserve(static_cast<std::size_t>(text.size()));
  for (const QChar character : text) {
    const int byte = ByteOf(character.unicode());
    result += byte == kNoByte ? '?' : static_cast<char>(byte);
  }
  return result;
}

bool IsInCodePage(QChar character) { return ByteOf(character.unicode()) != kNoByte; }

bool IsInCodePage(QStringView text) {
  return std::ranges::all_of(text, [](QChar character) { return IsInCodePage(character); });
}

}  // namespace zeb
