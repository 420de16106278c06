#include <QCloseEvent>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>
#include <QTreeWidget>
#include <cfenv>

#include "desktop_fixture.h"
#include "model/model_state.h"
#include "view/view_modes.h"

namespace zeb {
namespace {

using test::DesktopFixture;

struct ViewCase {
  const char* command;
  const char* word;
};

constexpr std::array kViews{ViewCase{"Vpzout", "Plan"}, ViewCase{"Vfront", "Front"},
                            ViewCase{"Vside", "Side"},  ViewCase{"Visolbl", "SW"},
                            ViewCase{"Visobr", "SE"},   ViewCase{"Visotl", "NW"},
                            ViewCase{"Visotr", "NE"}};

class DesktopTest : public DesktopFixture {
 protected:
  // Answers the windows of a calculation with what they offer.
  void AcceptCalculation() {
    user.Press("frmCalc", "OK");
    user.Press("frmLimitList", "cmdOK");
    user.On("frmCalcProgress", [](QDialog&) {});
    user.On("frmCalcSummary", [this](QDialog& summary) {
      summary_ = summary.findChild<QPlainTextEdit*>("txtSummary")->toPlainText();
      summary.findChild<QPushButton*>("cmdOK")->click();
    });
  }

  QString summary_;
};

TEST_F(DesktopTest, StartsEmptyWithNothingToDoButOpen) {
  Start();
  for (const char* command : {"Fsav", "FundoOneStep", "Fdata", "Vfront", "Ccall", "Dview"})
    EXPECT_FALSE(CanPick(command)) << command;
  for (const char* command : {"Fnew", "Fopen", "mnuOptions", "mnuAbout"})
    EXPECT_TRUE(CanPick(command)) << command;
  EXPECT_TRUE(user.shown.isEmpty()) << qPrintable(user.shown.join(", "));
}

TEST_F(DesktopTest, ShowsEveryExampleInAllSevenViews) {
  Start();
  for (const char* name : {"dwelling.zeb", "machinery_room_mist.zeb", "nfpa_grid.zeb",
                           "office_floor.zeb", "ridge_warehouse.zeb", "ring_main.zeb"}) {
    Restart(Example(name));
    EXPECT_EQ(TheProject().ModelState, model_state::kChecked) << name;
    EXPECT_EQ(Window().windowTitle(), "ZEB: " + QString(name).toUpper()) << name;
    for (const ViewCase& view : kViews) {
      Pick(view.command);
      EXPECT_EQ(PanelText(4), view.word);
      EXPECT_GT(Ink(), 300) << name << ' ' << view.word;
    }
  }
  EXPECT_TRUE(user.shown.isEmpty()) << qPrintable(user.shown.join(", "));
}

TEST_F(DesktopTest, ZoomsByABoxPansAndFits) {
  Start(Example("office_floor.zeb"));
  Pick("Zinall");
  EXPECT_EQ(PanelText(3), "WHICH PIPES?");
  Drag(Place(320, 470), Place(630, 20));
  EXPECT_EQ(TheProject().ZoomState, zoom::kZoomed);
  auto& north = *Window().findChild<QToolButton*>("pan0");
  auto& west = *Window().findChild<QToolButton*>("pan6");
  EXPECT_TRUE(north.isVisible());

  const float left = TheProject().ZoomX1;
  west.click();
  EXPECT_LT(TheProject().ZoomX1, left);
  Pick("Vfront");
  EXPECT_FALSE(north.isVisible());
  Pick("Vpzout");
  EXPECT_EQ(TheProject().ZoomState, zoom::kNone);
}

TEST_F(DesktopTest, ZoomsWithTheWheelAboutThePointer) {
  Start(Example("office_floor.zeb"));
  const QPoint place = MiddleOf(30);
  QWheelEvent turn(place, Picture().mapToGlobal(place), {}, {0, 120}, Qt::NoButton, {},
                   Qt::NoScrollPhase, false);
  QApplication::sendEvent(&Picture(), &turn);
  EXPECT_EQ(TheProject().ZoomState, zoom::kZoomed);
  const QPoint moved = MiddleOf(30) - place;
  EXPECT_LT(moved.manhattanLength(), 12) << "the pipe stays under the pointer";
  QTest::mouseDClick(&Picture(), Qt::MiddleButton, {}, place);
  EXPECT_EQ(TheProject().ZoomState, zoom::kNone);
}

TEST_F(DesktopTest, ShowsEveryDisplayItemBeforeAndAfterACalculation) {
  AcceptCalculation();
  Start(Example("dwelling.zeb"));
  Pick("Vpzout");
  const int bare = Ink();
  std::array<int, 18> before{};
  const auto show = [&](int item) {
    Pick(("mnuDisplay" + std::to_string(item)).c_str());
    return Ink();
  };
  Window().Switches().Enable(Feature::kDisplayMenu, true);
  for (int item = 0; item < 18; ++item) before.at(static_cast<std::size_t>(item)) = show(item);
  EXPECT_EQ(before[0], bare);
  EXPECT_GT(before[1], bare) << "node numbers";
  EXPECT_EQ(before[13], bare) << "no pressures yet";

  Pick("Ccall");
  ASSERT_EQ(TheProject().ModelState, model_state::kCalculated);
  const int calculated = show(0);
  for (const int item : {1, 2, 3, 5, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17})
    EXPECT_GT(show(item), calculated) << item;
}

TEST_F(DesktopTest, ShowsThePipeThatIsPressedAndStepsOn) {
  Start(Example("office_floor.zeb"));
  Pick("munInspect");
  Click(MiddleOf(20));
  auto* details = Window().findChild<QDialog*>("frmViewInfo");
  ASSERT_NE(details, nullptr);
  const int pressed = TheProject().PickedPipe;
  EXPECT_EQ(TheProject().HighlightedPipe, pressed);
  const QString ending = QStringLiteral("End of details for pipe %1").arg(pressed);
  const auto text = [&] { return details->findChild<QPlainTextEdit*>()->toPlainText(); };
  EXPECT_TRUE(text().contains(ending)) << qPrintable(text());
  auto* list = Window().findChild<QTreeWidget*>("lstInspector");
  ASSERT_NE(list, nullptr);
  EXPECT_EQ(list->topLevelItem(0)->text(0), "Node No");

  QTest::mouseClick(details->findChild<QPushButton*>("cmdNext"), Qt::LeftButton);
  EXPECT_EQ(TheProject().PickedPipe, pressed + 1);
  const QString before = text();
  user.Press("frmUndo", "cmdCancel");
  TheProject().PipeSize[pressed] = TheProject().PipeSize[pressed + 1] = 99;
  Pick("Fundo");
  EXPECT_NE(text(), before) << "the windows keep up with the network";
  EXPECT_EQ(list->topLevelItem(1)->text(1).left(4), "99mm");
  QTest::keyClick(details, Qt::Key_Escape);
  EXPECT_FALSE(details->isVisible());
  QTest::mouseClick(&Picture(), Qt::LeftButton, {}, MiddleOf(5));
  EXPECT_NE(Window().findChild<QDialog*>("frmViewInfo"), nullptr) << "it opens again";
}

TEST_F(DesktopTest, CalculatesPickedHeadsWithTheirSupply) {
  AcceptCalculation();
  Start(Example("office_floor.zeb"));
  Pick("Cind");
  const int first = 60;
  for (int head = first; head > first - 4; --head)
    Click(EndOf(static_cast<int>(TheProject().HeadPipe[head])));
  EXPECT_EQ(TheProject().SelectedHeadCount, 4);
  Pick("Vpzout");
  EXPECT_TRUE(PanelText(1).startsWith("Plan - 4 heads = 48.0 m2")) << qPrintable(PanelText(1));
  Pick("Ccall");
  EXPECT_EQ(TheProject().ModelState, model_state::kCalculated);
  EXPECT_TRUE(summary_.contains("Source Duty: ")) << qPrintable(summary_.left(300));
  EXPECT_NEAR(TheProject().SumHeadFlow, TheProject().SourceFlow, 0.5);
  summary_.clear();
  Pick("Dcalc");
  EXPECT_FALSE(summary_.isEmpty());
}

TEST_F(DesktopTest, CalculatesTheDemandWithoutASupply) {
  AcceptCalculation();
  user.On("frmCalc", [](QDialog& form) {
    auto* supply = form.findChild<QComboBox*>("ComWaterSupply");
    supply->setCurrentIndex(0);
    emit supply->activated(0);
    form.findChild<QPushButton*>("OK")->click();
  });
  Start(Example("dwelling.zeb"));
  Pick("Ccall");
  EXPECT_EQ(TheProject().ModelState, model_state::kCalculated);
  EXPECT_FALSE(summary_.contains("Balanced to")) << qPrintable(summary_.left(300));
  EXPECT_EQ(TheProject().PipeLines[10], "None");
  EXPECT_NEAR(TheProject().SumHeadFlow, TheProject().SourceFlow, 0.5);
}

TEST_F(DesktopTest, OpensAProjectThatIsDroppedOnIt) {
  Start();
  QMimeData file;
  const auto drop = [&](const QString& path) {
    file.setUrls({QUrl::fromLocalFile(path)});
    QDragEnterEvent enter({50, 50}, Qt::CopyAction, &file, Qt::LeftButton, {});
    QApplication::sendEvent(&Window(), &enter);
    if (!enter.isAccepted()) return;
    QDropEvent dropped({50, 50}, Qt::CopyAction, &file, Qt::LeftButton, {});
    QApplication::sendEvent(&Window(), &dropped);
  };
  drop("/etc/hostname");
  EXPECT_EQ(TheProject().PipeCount, 0);
  drop(QString::fromStdString(Example("ring_main.zeb")));
  EXPECT_EQ(TheProject().PipeCount, 46);
}

class FaultyProjectTest : public DesktopTest {
 protected:
  // The office floor with a pipe of a size that its type does not have.
  std::string FaultyProject() {
    const std::string path = Example("office_floor.zeb");
    QFile file(QString::fromStdString(path));
    EXPECT_TRUE(file.open(QIODevice::ReadWrite));
    QByteArray text = file.readAll();
    text.replace(" 101  40   2.000", " 101  41   2.000");
    file.seek(0);
    file.write(text);
    return path;
  }
};

TEST_F(FaultyProjectTest, IsCheckedOnWhateverTheBoxComputes) {
  user.Press("frmCalcSummary", "cmdOK");
  user.On("ZEBF04", [](QDialog& box) {
    for (const QLabel* label : box.findChildren<QLabel*>())
      EXPECT_GE(label->height(), label->heightForWidth(label->width()))
          << qPrintable(label->text());
    std::feraiseexcept(FE_INVALID | FE_DIVBYZERO);  // as the layout of a window may do
    box.findChild<QPushButton*>("cbut")->click();
  });
  Start(FaultyProject());
  EXPECT_EQ(TheProject().ModelState, model_state::kChecked);
  EXPECT_EQ(TheProject().PipeSize[13], 40);
  EXPECT_FALSE(user.shown.filter("Error").size()) << qPrintable(user.shown.join(", "));
}

TEST_F(FaultyProjectTest, IsNotCalculatedInPartWhenTheCheckIsStopped) {
  AcceptCalculation();
  user.Press("ZEBF04", "Canbut");
  user.Press("ZEBF02", "cmdCancel");
  Start(FaultyProject());
  EXPECT_LT(TheProject().PipeCount, 72);
  user.shown.clear();
  Pick("Ccall");
  EXPECT_EQ(user.shown, QStringList({"ZEBF04", "ZEBF02"}));
  EXPECT_EQ(TheProject().ModelState, model_state::kRead);
  Pick("Cind");
  EXPECT_EQ(TheProject().SelectedHeadsMode, 0) << "nor are heads picked in it";
}

TEST_F(DesktopTest, PicksHeadsByABox) {
  Start(Example("office_floor.zeb"));
  Pick("Cboxes");
  Drag({1, 1}, {Picture().width() - 1, Picture().height() - 1});
  EXPECT_EQ(TheProject().SelectedHeadCount, TheProject().HeadCount);
}

TEST_F(DesktopTest, ForgetsPickedHeadsWhenTheDataChange) {
  Start(Example("office_floor.zeb"));
  const auto pick_all = [&] {
    Pick("Cboxes");
    Drag({1, 1}, {Picture().width() - 1, Picture().height() - 1});
    EXPECT_GT(TheProject().SelectedHeadCount, 0);
  };
  pick_all();
  user.On("ZEBF02", [](QDialog& form) {
    form.findChild<QComboBox*>("et1")->setEditText("Ground floor");
    form.findChild<QPushButton*>("cmdApply")->click();
  });
  Pick("Fdata");
  EXPECT_EQ(TheProject().SelectedHeadsMode, 0);

  pick_all();
  Pick("FundoOneStep");
  EXPECT_EQ(TheProject().SelectedHeadsMode, 0);
  EXPECT_EQ(PanelText(3), "VIEW");

  TheProject().DataChanged = 0;
  pick_all();
  TheProject().DisplayItem = 2;
  user.Press("ZEBF02", "cmdCancel");
  Pick("Fnew");
  EXPECT_EQ(TheProject().SelectedHeadsMode, 0);
  EXPECT_EQ(TheProject().DisplayItem, 0);
  EXPECT_EQ(PanelText(3), "VIEW");
}

TEST_F(DesktopTest, StopsACalculation) {
  AcceptCalculation();
  user.Press("frmCalcProgress", "cmdStop");
  Start(Example("nfpa_grid.zeb"));
  Pick("Ccall");
  EXPECT_TRUE(user.shown.contains("frmCalcProgress"));
  EXPECT_EQ(TheProject().ModelState, model_state::kRead);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  Pick("Vfront");
  EXPECT_EQ(PanelText(4), "Front") << "the window still answers";
}

TEST_F(DesktopTest, EditsTheProjectDataAndSavesThem) {
  const std::string path = Example("dwelling.zeb");
  Start(path);
  user.On("ZEBF02", [](QDialog& form) {
    auto* name = form.findChild<QComboBox*>("et1");
    name->setEditText("Caf\u00E9 by the sea");
    form.findChild<QPushButton*>("cmdApply")->click();
  });
  Pick("Fdata");
  EXPECT_EQ(TheProject().PipeLines[1], "Caf\xE9 by the sea");
  EXPECT_EQ(TheProject().ModelState, model_state::kChecked);
  Restart(path);
  EXPECT_EQ(TheProject().PipeLines[1], "Caf\xE9 by the sea");
}

TEST_F(DesktopTest, AddsAHeadCodeAndASupply) {
  Start(Example("dwelling.zeb"));
  const int codes = TheProject().HeadCodeCount;
  const int supplies = TheProject().SupplyCount;
  user.On("ZEBF02", [](QDialog& form) {
    const auto press = [&](const char* name) { form.findChild<QPushButton*>(name)->click(); };
    const auto type = [&](const char* name, const char* text) {
      auto* field = form.findChild<QLineEdit*>(name);
      field->clear();
      QTest::keyClicks(field, text);
    };
    form.findChild<QTabWidget*>("pages")->setCurrentIndex(1);
    press("cmdAddHeadCode");
    EXPECT_FALSE(form.findChild<QPushButton*>("cmdApply")->isEnabled());
    type("txtSize", "20");
    type("txtKFactor", "115");
    type("txtMinPressure", "0.7");
    type("txtHeadName", "BIG");
    press("cmdApplyHeadCode");
    form.findChild<QTabWidget*>("pages")->setCurrentIndex(2);
    press("cmdPumpAdd");
    type("txtReference", "Tank");
    type("txtPressure0", "5");
    press("cmbPumpSave");
    press("cmdApply");
  });
  Pick("Fdata");
  EXPECT_EQ(TheProject().HeadCodeCount, codes + 1);
  EXPECT_EQ(TheProject().SupplyCount, supplies + 1);
  EXPECT_EQ(TheProject().PipeLines[10], "Tank");
}

TEST_F(DesktopTest, DropsResultsWhoseSupplyOrHeadCodeIsChanged) {
  AcceptCalculation();
  Start(Example("dwelling.zeb"));
  const auto change = [&](int page, const char* edit, const char* field, const char* store) {
    Pick("Ccall");
    ASSERT_EQ(TheProject().ModelState, model_state::kCalculated);
    user.On("ZEBF02", [=](QDialog& form) {
      const auto press = [&](const char* name) { form.findChild<QPushButton*>(name)->click(); };
      form.findChild<QTabWidget*>("pages")->setCurrentIndex(page);
      form.findChild<QListWidget*>("lstHeadCodes")->setCurrentRow(13);
      press(edit);
      form.findChild<QLineEdit*>(field)->clear();
      QTest::keyClicks(form.findChild<QLineEdit*>(field), "61");
      press(store);
      press("cmdCancel");
    });
    Pick("Fdata");
    EXPECT_EQ(TheProject().ModelState, model_state::kChecked);
    EXPECT_FALSE(CanPick("Dcalc"));
  };
  change(2, "cmbPumpEdit", "txtPressure0", "cmbPumpSave");
  EXPECT_EQ(TheProject().SupplyTable[TheProject().PumpCurveIndex][1], 61);
  change(1, "cmdEdit", "txtKFactor", "cmdApplyHeadCode");
  EXPECT_EQ(TheProject().HeadK[1], 61);
}

TEST_F(DesktopTest, UndoesAndAsksBeforeClosingWithChanges) {
  const std::string path = Example("dwelling.zeb");
  Start(path);
  Pick("FundoOneStep");
  EXPECT_GT(TheProject().DataChanged, 0);
  user.On("frmUndo", [](QDialog& form) {
    auto* list = form.findChild<QListWidget*>("lstUndo");
    ASSERT_GT(list->count(), 0);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(0)).center());
    form.findChild<QPushButton*>("cmbUndo")->click();
  });
  Pick("Fundo");
  user.Press("Save ZEB Project Data", "Yes");
  Pick("Fexit");
  EXPECT_FALSE(Window().isVisible());
  EXPECT_TRUE(user.shown.contains("Save ZEB Project Data"));
  EXPECT_EQ(TheProject().ClosedownDone, 1);
}

TEST_F(DesktopTest, BeginsANewProjectInTheProjectData) {
  Start();
  QString lines;
  user.On("ZEBF02", [&](QDialog& form) {
    form.findChild<QPlainTextEdit*>("txtLines0")->setPlainText(lines);
    form.findChild<QPushButton*>("cmdApply")->click();
  });
  user.Press("frmCalcSummary", "cmdOK");
  Pick("Fnew");
  Window().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
  EXPECT_EQ(TheProject().LineCount, 18);
  EXPECT_EQ(PanelText(1), "Plan - No pipes yet specified");
  EXPECT_EQ(PanelText(3), "ADD");

  lines = "1 2 50 3.0 E 1 0";
  Pick("Fdata");
  EXPECT_EQ(TheProject().PipeCount, 1);
  EXPECT_EQ(TheProject().ProjectPath, "[Untitled]");
  EXPECT_EQ(PanelText(3), "VIEW");
  EXPECT_GT(Ink(), 0) << "the first pipe is drawn";
}

TEST_F(DesktopTest, TogglesTheErrorBoxesOnTheStatusBar) {
  Start(Example("dwelling.zeb"));
  auto* panel = Window().findChild<QWidget*>("panel6");
  QTest::mouseClick(panel, Qt::LeftButton);
  EXPECT_TRUE(TheSession().SuppressErrors);
  EXPECT_EQ(PanelText(6), "[OFF]");
}

TEST_F(DesktopTest, OffersTheLastProjectsAndForgetsThoseThatAreGone) {
  const std::string path = Example("dwelling.zeb");
  Start(path);
  Restart();
  auto* file = Window().findChild<QMenu*>("Ffile");
  auto* recent = Window().findChild<QMenu*>("mnuRecent");
  emit file->aboutToShow();
  ASSERT_EQ(recent->actions().size(), 1);
  recent->actions()[0]->trigger();
  EXPECT_GT(TheProject().PipeCount, 0);

  QFile::remove(QString::fromStdString(path));
  Restart();
  emit Window().findChild<QMenu*>("Ffile")->aboutToShow();
  recent = Window().findChild<QMenu*>("mnuRecent");
  recent->actions()[0]->trigger();
  EXPECT_EQ(user.shown, QStringList("Open ZEB Project?"));
  emit Window().findChild<QMenu*>("Ffile")->aboutToShow();
  EXPECT_TRUE(recent->actions().isEmpty());
}

TEST_F(DesktopTest, EveryCommandHasATipAndNoTwoShareAKey) {
  Start();
  QStringList keys;
  for (const QAction* action : Window().findChildren<QAction*>()) {
    if (action->objectName().isEmpty() || action->isSeparator()) continue;
    EXPECT_FALSE(action->whatsThis().isEmpty()) << qPrintable(action->objectName());
    const QString key = action->shortcut().toString();
    if (key.isEmpty()) continue;
    EXPECT_FALSE(keys.contains(key)) << qPrintable(key);
    keys.append(key);
  }
  EXPECT_TRUE(keys.contains("F12"));
}

}  // namespace
}  // namespace zeb
