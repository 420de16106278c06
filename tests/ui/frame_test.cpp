#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>

#include "project/fault_report.h"
#include "ui/code_page_guard.h"
#include "ui/feature_switches.h"
#include "ui/window_place.h"
#include "window_fixture.h"

namespace zeb {
namespace {

using test::WindowFixture;

class FrameTest : public WindowFixture {};

TEST_F(FrameTest, ShowsPanelsByTheirNumbers) {
  shell.SetPanel(Panel::kHint, "Plan - 12 m\xB2");
  shell.SetPanel(Panel::kErrors, "Err #: 3 [ON]");
  shell.SetPanelTip(Panel::kErrors, "3 Errors found on last check ");
  shell.SetPanelPicture(Panel::kSaveState, kPictureUnsaved);
  EXPECT_EQ(Child<QLabel>(window, "panel1").text(), u"Plan - 12 m\u00B2"_qs);
  EXPECT_EQ(Child<QLabel>(window, "panel6").text(), "Err #: 3 [ON]");
  EXPECT_EQ(Child<QLabel>(window, "panel6").toolTip(), "3 Errors found on last check ");
  EXPECT_EQ(Child<QLabel>(window, "panel7").property("picture").toString(), "disk_save_BW");
  shell.SetPanelTip(Panel::kErrors, "");
  EXPECT_TRUE(Child<QLabel>(window, "panel6").toolTip().contains("click")) << "what it is for";
}

TEST_F(FrameTest, StretchesThePictureFromCornerToCorner) {
  window.resize(1280, 720);
  window.show();
  PictureWidget& picture = window.Picture();
  QSignalSpy presses(&picture, &PictureWidget::Pressed);
  const QPoint corner(picture.width() - 1, picture.height() - 1);
  QTest::mouseClick(&picture, Qt::LeftButton, {}, {1, 1});  // {} stands for the middle
  QTest::mouseClick(&picture, Qt::LeftButton, {}, corner);
  ASSERT_EQ(presses.size(), 2);
  EXPECT_NEAR(presses[0][1].value<Point>().x, 0, 1);
  EXPECT_NEAR(presses[0][1].value<Point>().y, 0, 1.5);
  EXPECT_NEAR(presses[1][1].value<Point>().x, 640, 1);
  EXPECT_NEAR(presses[1][1].value<Point>().y, 480, 1.5);
  QTest::mouseClick(&picture, Qt::BackButton, {}, corner);
  EXPECT_EQ(presses.size(), 2) << "a side button picks nothing";
}

TEST_F(FrameTest, EnablesAnActionOnlyWithAllItsFeatures) {
  QAction calculate;
  QWidget bar;
  FeatureSwitches switches;
  switches.Add(calculate, {Feature::kCalculateMenu, Feature::kAdd});
  switches.Add(bar, Feature::kToolBars);
  switches.Enable(Feature::kCalculateMenu, false);
  switches.Enable(Feature::kAdd, true);
  EXPECT_FALSE(calculate.isEnabled());
  switches.Enable(Feature::kCalculateMenu, true);
  EXPECT_TRUE(calculate.isEnabled());
  switches.Enable(Feature::kToolBars, false);
  EXPECT_FALSE(bar.isEnabled());
  EXPECT_TRUE(calculate.isEnabled());
}

TEST_F(FrameTest, TellsAFailureOfACommandAndRunsTheNextOne) {
  CommandRunner runner(session, [] {});
  bool inner = false;
  runner.RunCommand("ZEBF03", "Fopen_Click", [&] {
    runner.RunCommand("ZEBF03", "Fsav_Click", [&] { inner = true; });
    throw RuntimeFailure(failure::kSubscriptOutOfRange);
  });
  EXPECT_FALSE(inner) << "no second command while one runs";
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].text,
            "Subscript out of range\r\nin ZEB.ZEBF03.Fopen_Click at line 10");
  runner.RunCommand("ZEBF03", "Fsav_Click", [&] { inner = true; });
  EXPECT_TRUE(inner);
}

class WarningBoxTest : public WindowFixture {
 protected:
  FaultAnswer Report(const char* button) {
    const CheckFault fault{.number = 4,
                           .location = "Pipe 7",
                           .problem = "[Error 4] Same nodes",
                           .reason = "They must differ",
                           .correction = "Changed",
                           .short_line = ""};
    WhenModal([&](QDialog& box) {
      title_ = box.windowTitle();
      for (const QGroupBox* frame : box.findChildren<QGroupBox*>()) {
        frames_.append(frame->title());
        texts_.append(frame->findChild<QLabel*>()->text());
      }
      QTest::mouseClick(&Child<QPushButton>(box, button), Qt::LeftButton);
    });
    return ReportFault(session, " 2 in /JOBS/A.ZEB", fault, true);
  }

  QString title_;
  QStringList frames_;
  QStringList texts_;
};

TEST_F(WarningBoxTest, ShowsTheFourFramesInOrderAndGoesOnOrStops) {
  EXPECT_EQ(Report("cbut"), FaultAnswer::kContinue);
  EXPECT_EQ(title_, "ZEB Warning No: 2 in /JOBS/A.ZEB");
  EXPECT_EQ(frames_, QStringList({"Location", "Problem", "Reason", "Correction"}));
  EXPECT_EQ(texts_, QStringList({"Pipe 7", "[Error 4] Same nodes", "They must differ", "Changed"}));
  EXPECT_EQ(Report("Canbut"), FaultAnswer::kStop);
  EXPECT_EQ(session.project.StopFlag, kStopCheck);
}

TEST(CodePageGuard, RefusesWhatAProjectFileCannotHold) {
  QLineEdit field;
  GuardText(field);
  for (const QChar typed : u"12 m\u00B2 \u03A9x"_qs) field.insert(typed);
  EXPECT_EQ(field.text(), u"12 m\u00B2 x"_qs);

  QPlainTextEdit text;
  GuardText(text);
  text.insertPlainText(u"caf\u00E9\n"_qs);
  text.insertPlainText(u"\u4E2D\u6587"_qs);
  QApplication::processEvents();
  EXPECT_EQ(text.toPlainText(), u"caf\u00E9\n"_qs);
}

struct PlaceCase {
  const char* name;
  const char* left;
  const char* top;
  const char* width;
  const char* height;

  friend void PrintTo(const PlaceCase& stored, std::ostream* out) { *out << stored.name; }
};

class WindowPlaceTest : public WindowFixture, public testing::WithParamInterface<PlaceCase> {};

TEST_P(WindowPlaceTest, KeepsTheWindowOnTheScreen) {
  const PlaceCase& stored = GetParam();
  session.settings.SaveSetting("FormPos", "frmCalc_Left", stored.left);
  session.settings.SaveSetting("FormPos", "frmCalc_Top", stored.top);
  session.settings.SaveSetting("FormPos", "frmCalcWidth", stored.width);
  session.settings.SaveSetting("FormPos", "frmCalcHeight", stored.height);
  QWidget form;
  form.resize(300, 200);
  RestorePlace(session.settings, form, "frmCalc");
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_TRUE(screen.contains(QRect(form.pos(), form.size())))
      << form.x() << ' ' << form.y() << ' ' << form.width() << ' ' << form.height();
}

INSTANTIATE_TEST_SUITE_P(Stored, WindowPlaceTest,
                         testing::Values(PlaceCase{"beyond", "9000", "9000", "300", "200"},
                                         PlaceCase{"before", "-4000", "-50", "300", "200"},
                                         PlaceCase{"large", "0", "0", "99999", "99999"},
                                         PlaceCase{"damaged", "abc", "", "x", "0"}),
                         [](const auto& stored) { return std::string(stored.param.name); });

TEST_F(FrameTest, ShowsAWindowsTitleWhole) {
  const QString title = "Source flow = 2771.264 L/min is off pump curve";
  QWidget form;
  form.resize(100, 50);
  form.setWindowTitle(title);
  RestorePlace(session.settings, form, "frmCalc");
  EXPECT_GT(form.width(), form.fontMetrics().horizontalAdvance(title));
}

TEST_F(FrameTest, RemembersWhereAWindowWas) {
  QWidget form;
  form.setGeometry(40, 30, 320, 210);
  KeepPlace(session.settings, form, "frmCalc");
  QWidget again;
  RestorePlace(session.settings, again, "frmCalc");
  EXPECT_EQ(again.pos(), form.pos());
  EXPECT_EQ(again.size(), form.size());
}

}  // namespace
}  // namespace zeb
