#include "ui/shown_text.h"

#include <QFile>

#include "paint/code_page.h"
#include "posix/path_text.h"
#include "services/code_page.h"

namespace zeb {

QString ShownText(std::string_view text) {
  QString shown = IsUtf8(text) ? QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()))
                               : ToQt(text);
  return shown.replace("\r\n", "\n").replace('\r', '\n');
}

std::string PathFromQt(const QString& path) {
  return PathText(QFile::encodeName(path).toStdString());
}

QString PathToQt(std::string_view path) {
  return QFile::decodeName(QByteArray::fromStdString(NativePath(path)));
}

}  // namespace zeb
