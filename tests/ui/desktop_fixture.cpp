#include "desktop_fixture.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <algorithm>

namespace zeb::test {
namespace {

void CopyFolder(const QString& from, const QString& to) {
  QDir().mkpath(to);
  for (const QString& name : QDir(from).entryList(QDir::Files))
    QFile::copy(from + "/" + name, to + "/" + name);
}

}  // namespace

DesktopFixture::DesktopFixture() {
  const QString program = folder_.filePath("program");
  const QString built = ZEB_PROGRAM_FOLDER;
  QDir().mkpath(program);
  for (const char* name : {"DesignAuth_V2.dat", "zeblast.txt"})
    QFile::copy(built + "/" + name, program + "/" + name);
  for (const char* name : {"pipedata", "Library", "Examples"})
    CopyFolder(built + "/" + name, program + "/" + name);
  QDir().mkpath(folder_.filePath("home"));
  qputenv("ZEB_PROGRAM_FOLDER", program.toLocal8Bit());
  qputenv("HOME", folder_.filePath("home").toLocal8Bit());
  qputenv("XDG_CONFIG_HOME", folder_.filePath("config").toLocal8Bit());
  qputenv("XDG_DATA_HOME", folder_.filePath("data").toLocal8Bit());
}

DesktopFixture::~DesktopFixture() = default;

void DesktopFixture::Start(const std::string& path) {
  program_ = std::make_unique<Program>();
  ASSERT_TRUE(program_->Start(path));
}

void DesktopFixture::Restart(const std::string& path) {
  program_.reset();
  Start(path);
}

std::string DesktopFixture::Example(const std::string& name) const {
  const QString copy = folder_.filePath("home/") + QString::fromStdString(name);
  QFile::copy(QString(ZEB_DATA_DIR "/examples/") + QString::fromStdString(name), copy);
  return copy.toStdString();
}

void DesktopFixture::Pick(const char* command) {
  auto* action = Window().findChild<QAction*>(command);
  ASSERT_NE(action, nullptr) << command;
  ASSERT_TRUE(action->isEnabled()) << command;
  action->trigger();
}

bool DesktopFixture::CanPick(const char* command) {
  auto* action = Window().findChild<QAction*>(command);
  return action != nullptr && action->isEnabled();
}

QString DesktopFixture::PanelText(int panel) {
  return Window().findChild<QLabel*>(QStringLiteral("panel%1").arg(panel))->text();
}

QPoint DesktopFixture::Place(float x, float y) {
  const QSizeF size = Picture().size();
  return QPointF(x * size.width() / DrawingSurface::kWidth,
                 y * size.height() / DrawingSurface::kHeight)
      .toPoint();
}

QPoint DesktopFixture::MiddleOf(int pipe) {
  const Project& project = TheProject();
  return Place((project.PipeScreenX1[pipe] + project.PipeScreenX2[pipe]) / 2,
               (project.PipeScreenY1[pipe] + project.PipeScreenY2[pipe]) / 2);
}

QPoint DesktopFixture::EndOf(int pipe) {
  return Place(TheProject().PipeScreenX2[pipe], TheProject().PipeScreenY2[pipe]);
}

void DesktopFixture::Drag(QPoint from, QPoint to) {
  QTest::mousePress(&Picture(), Qt::LeftButton, {}, from);
  QTest::mouseMove(&Picture(), (from + to) / 2);
  QTest::mouseMove(&Picture(), to);
  QTest::mouseRelease(&Picture(), Qt::LeftButton, {}, to);
}

int DesktopFixture::Ink() {
  const QImage& image = Picture().Surface().Image();
  int dots = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != 0xFFFFFFFF) ++dots;
  return dots;
}

}  // namespace zeb::test
