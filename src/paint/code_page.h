#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace zeb {

// Texts of the core are single bytes in Windows-1252.
[[nodiscard]] QString ToQt(std::string_view text);
// Characters that the code page lacks become "?"; see IsInCodePage.
[[nodiscard]] std::string FromQt(QStringView text);

[[nodiscard]] bool IsInCodePage(QChar character);
[[nodiscard]] bool IsInCodePage(QStringView text);

}  // namespace zeb
