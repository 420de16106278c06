#include "ui/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "paint/code_page.h"
#include "ui/shown_text.h"

namespace zeb {

void QtClipboard::SetText(const std::string& text) {
  QGuiApplication::clipboard()->setText(ShownText(text));
}

std::string QtClipboard::Text() { return FromQt(QGuiApplication::clipboard()->text()); }

}  // namespace zeb
