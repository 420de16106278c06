#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QMessageBox>
#include <csignal>
#include <exception>

#include "ui/program.h"
#include "ui/shown_text.h"
#include "zeb_version.h"

namespace {

// The project to begin with, empty when none is named.
std::string ProjectArgument() {
  QCommandLineParser parser;
  parser.setApplicationDescription("Hydraulic analysis of sprinkler pipe networks");
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument("project", "The project file to open.", "[project.zeb]");
  parser.process(*QCoreApplication::instance());
  const QStringList paths = parser.positionalArguments();
  return paths.isEmpty() ? std::string() : zeb::PathFromQt(QFileInfo(paths[0]).absoluteFilePath());
}

}  // namespace

int main(int argc, char** argv) {
  // A file size limit is told as a full disk, not by the end of the process.
  std::signal(SIGXFSZ, SIG_IGN);
  const QApplication application(argc, argv);
  QApplication::setApplicationName("ZEB");
  QApplication::setApplicationVersion(QStringLiteral("%1.%2.%3")
                                          .arg(zeb::kVersionMajor)
                                          .arg(zeb::kVersionMinor)
                                          .arg(zeb::kVersionRevision));
  QGuiApplication::setDesktopFileName("zeb");
  try {
    const std::string path = ProjectArgument();
    zeb::Program program;
    return program.Start(path) ? QApplication::exec() : 1;
  } catch (const std::exception& error) {
    QMessageBox::critical(nullptr, "ZEB", error.what());
    return 1;
  }
}
