#include "paint/code_page.h"

#include <algorithm>

#include "services/code_page.h"

namespace zeb {

QString ToQt(std::string_view text) { return QString::fromStdString(ToUtf8(text)); }

std::string FromQt(QStringView text) {
  if (const std::optional<std::string> whole = FromUtf8(text.toUtf8().toStdString())) return *whole;
  std::string result;
  for (const QChar character : text)
    result += IsInCodePage(character) ? FromQt(QStringView(&character, 1)) : "?";
  return result;
}

bool IsInCodePage(QChar character) {
  return !character.isSurrogate() && IsInCodePage(QStringView(&character, 1));
}

bool IsInCodePage(QStringView text) {
  return text.isValidUtf16() && FromUtf8(text.toUtf8().toStdString()).has_value();
}

}  // namespace zeb
