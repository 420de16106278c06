#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "modal_user.h"
#include "ui/program.h"

namespace zeb::test {

// The whole program on real files below a temporary folder, offscreen.
class DesktopFixture : public testing::Test {
 protected:
  DesktopFixture();
  ~DesktopFixture() override;

  // Starts the program, with a project when a path is given.
  void Start(const std::string& path = {});
  // A copy of a shipped example that the test may change.
  [[nodiscard]] std::string Example(const std::string& name) const;
  // Begins the program anew, as the next run of it.
  void Restart(const std::string& path = {});

  [[nodiscard]] MainWindow& Window() { return program_->Window(); }
  [[nodiscard]] PictureWidget& Picture() { return Window().Picture(); }
  [[nodiscard]] Project& TheProject() { return program_->TheSession().project; }
  [[nodiscard]] Session& TheSession() { return program_->TheSession(); }

  // Picks a command of the menus; it must be enabled.
  void Pick(const char* command);
  [[nodiscard]] bool CanPick(const char* command);
  [[nodiscard]] QString PanelText(int panel);

  // The place in the picture's widget of a point of the drawing.
  [[nodiscard]] QPoint Place(float x, float y);
  [[nodiscard]] QPoint MiddleOf(int pipe);
  [[nodiscard]] QPoint EndOf(int pipe);
  void Click(QPoint place) { QTest::mouseClick(&Picture(), Qt::LeftButton, {}, place); }
  void Drag(QPoint from, QPoint to);
  // How many dots of the picture are not of the background.
  [[nodiscard]] int Ink();

  ModalUser user;

 private:
  QTemporaryDir folder_;
  std::unique_ptr<Program> program_;
};

}  // namespace zeb::test
