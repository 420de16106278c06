#include "services/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace zeb {
namespace {

// The characters of the codes 0x80 to 0x9F; the five codes without a character stand for
// themselves.
constexpr std::array<char16_t, 32> kUpperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr char32_t kFirstUpperControl = 0x80;

char32_t CharacterOf(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  const std::size_t index = code - kFirstUpperControl;
  return index < kUpperControls.size() ? kUpperControls.at(index) : code;
}

std::optional<char> ByteOf(char32_t character) {
  const auto* const found =
      std::find(kUpperControls.begin(), kUpperControls.end(), static_cast<char16_t>(character));
  if (character <= 0xFFFF && found != kUpperControls.end()) {
    return static_cast<char>(kFirstUpperControl + (found - kUpperControls.begin()));
  }
  const bool same_code = character < kFirstUpperControl || (character >= 0xA0 && character <= 0xFF);
  if (!same_code) return std::nullopt;
  return static_cast<char>(character);
}

// The characters of the code page need at most three bytes.
void AppendUtf8(std::string& utf8, char32_t character) {
  const auto append = [&](char32_t byte) { utf8 += static_cast<char>(byte); };
  if (character < 0x80) {
    append(character);
  } else if (character < 0x800) {
    append(0xC0 | (character >> 6));
    append(0x80 | (character & 0x3F));
  } else {
    append(0xE0 | (character >> 12));
    append(0x80 | ((character >> 6) & 0x3F));
    append(0x80 | (character & 0x3F));
  }
}

// The lead byte's bits, how many bytes follow it, and the least character of that length.
struct Sequence {
  char32_t bits;
  std::size_t following;
  char32_t least;
};

std::optional<Sequence> SequenceOf(unsigned char lead) {
  if (lead < 0x80) return Sequence{lead, 0, 0};
  if ((lead & 0xE0) == 0xC0) return Sequence{lead & 0x1FU, 1, 0x80};
  if ((lead & 0xF0) == 0xE0) return Sequence{lead & 0x0FU, 2, 0x800};
  if ((lead & 0xF8) == 0xF0) return Sequence{lead & 0x07U, 3, 0x10000};
  return std::nullopt;
}

// Takes the first character off well-formed UTF-8.
std::optional<char32_t> TakeCharacter(std::string_view& utf8) {
  const auto sequence = SequenceOf(static_cast<unsigned char>(utf8.front()));
  if (!sequence || utf8.size() <= sequence->following) return std::nullopt;
  char32_t character = sequence->bits;
  for (std::size_t next = 1; next <= sequence->following; ++next) {
    const auto byte = static_cast<unsigned char>(utf8[next]);
    if ((byte & 0xC0) != 0x80) return std::nullopt;
    character = (character << 6) | (byte & 0x3FU);
  }
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < sequence->least || character > 0x10FFFF || surrogate) return std::nullopt;
  utf8.remove_prefix(sequence->following + 1);
  return character;
}

}  // namespace

std::string ToUtf8(std::string_view text) {
  std::string utf8;
  for (const char byte : text) AppendUtf8(utf8, CharacterOf(byte));
  return utf8;
}

std::optional<std::string> FromUtf8(std::string_view utf8) {
  std::string text;
  while (!utf8.empty()) {
    const auto character = TakeCharacter(utf8);
    const auto byte = character ? ByteOf(*character) : std::nullopt;
    if (!byte) return std::nullopt;
    text += *byte;
  }
  return text;
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    if (!TakeCharacter(bytes)) return false;
  }
  return true;
}

}  // namespace zeb
