#include <QApplication>
#include <QFileInfo>

#include "ui/program.h"
#include "ui/shown_text.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QApplication::setApplicationName("ZEB");
  QGuiApplication::setDesktopFileName("zeb");

  const QStringList arguments = QApplication::arguments();
  std::string path;
  if (arguments.size() > 1) path = zeb::PathFromQt(QFileInfo(arguments[1]).absoluteFilePath());
  zeb::Program program;
  return program.Start(path) ? QApplication::exec() : 1;
}
