#include "ui/main_window.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QScopeGuard>
#include <utility>

#include "lifecycle/closedown.h"
#include "lifecycle/project_commands.h"
#include "ui/error_boxes.h"
#include "ui/shown_text.h"
#include "ui/window_place.h"
#include "view/display_items.h"
#include "view/draw_view.h"
#include "view/drawing_settings.h"
#include "view/pan.h"

namespace zeb {
namespace {

constexpr char kModule[] = "ZEBF03";

// What works on a project only, off until there is one.
constexpr std::array kProjectFeatures{
    Feature::kEditMenu,  Feature::kDrawMenu, Feature::kCalculateMenu, Feature::kDisplayMenu,
    Feature::kPrintMenu, Feature::kViewMenu, Feature::kToolBars,      Feature::kSave,
    Feature::kSaveAs,    Feature::kUndo};

Qt::CursorShape CursorOf(PicturePointer shape) {
  return shape == PicturePointer::kCross ? Qt::CrossCursor : Qt::ArrowCursor;
}

MouseButton ButtonOf(Qt::MouseButton button) {
  if (button == Qt::RightButton) return MouseButton::kRight;
  return button == Qt::MiddleButton ? MouseButton::kMiddle : MouseButton::kLeft;
}

// What to do when there is nothing to see.
QString Invitation(const Project& project) {
  if (project.PipeCount > 0) return {};
  if (project.LineCount == 0)
    return MainWindow::tr(
        "Open a project with Ctrl+O, or drop its file here.\nCtrl+N begins a new one.");
  return MainWindow::tr(
      "There are no pipes yet.\nCtrl+D opens the project data to write their lines.");
}

// The path of the one project file that was dropped, empty for anything else.
QString DroppedProject(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1 || !urls[0].isLocalFile()) return {};
  const QString path = urls[0].toLocalFile();
  return path.endsWith(".zeb", Qt::CaseInsensitive) ? path : QString();
}

}  // namespace

MainWindow::MainWindow(Session& session)
    : session_(session),
      runner_(session, [this] { AfterEvent(); }),
      ui_{session, runner_},
      recent_(session),
      picture_(new PictureWidget(this)),
      panels_(new StatusPanels(this)),
      pointer_(session, picture_->Surface()),
      menus_(
          *this, session, switches_,
          [this](const MenuCommand& command) {
            WindowContext context{session_, pointer_};
            Run(std::string(command.name) + "_Click", [&] { command.run(context); });
            if (context.exits) close();
          },
          [this](QMenu& menu) { FillRecent(menu); }) {
  setObjectName(kModule);
  setAcceptDrops(true);
  setCentralWidget(picture_);
  setStatusBar(panels_);
  menus_.AddMenus();
  menus_.AddToolBars();
  for (const Feature feature : kProjectFeatures) switches_.Enable(feature, false);
  ConnectPicture();
  resize(1200, 760);
  AfterEvent();
}

void MainWindow::Start() {
  RestorePlace(session_.settings, *this, kModule);
  show();
  picture_->setFocus();
}

void MainWindow::ConnectPicture() {
  connect(picture_, &PictureWidget::NeedsRedraw, this, [this] { Redraw(); });
  connect(picture_, &PictureWidget::Pressed, this, [this](Qt::MouseButton button, Point at) {
    Run("pic1_MouseDown", [&] { pointer_.pic1_MouseDown(ButtonOf(button), at); });
  });
  connect(picture_, &PictureWidget::Moved, this,
          [this](Point at) { Run("pic1_MouseMove", [&] { pointer_.pic1_MouseMove(at); }); });
  connect(picture_, &PictureWidget::Released, this, [this](Qt::MouseButton button, Point at) {
    Run("pic1_MouseUp", [&] { pointer_.pic1_MouseUp(ButtonOf(button), at); });
  });
  connect(picture_, &PictureWidget::DoubleClicked, this, [this](Qt::MouseButton button) {
    Run("pic1_DblClick", [&] { pointer_.pic1_DblClick(ButtonOf(button)); });
  });
  connect(picture_, &PictureWidget::Wheeled, this, [this](Point at, int notches) {
    Run("pic1_MouseWheel", [&] { pointer_.pic1_MouseWheel(at, notches); });
  });
  connect(picture_, &PictureWidget::Escaped, this,
          [this] { Run("pic1_KeyPress", [&] { pointer_.KeyEscape(); }); });
  connect(picture_, &PictureWidget::MenuAsked, this, [this] { PickDisplay(); });
  connect(picture_, &PictureWidget::PanPressed, this,
          [this](int index) { Run("pan_Click", [&] { pan_Click(session_, index); }); });
  connect(panels_, &StatusPanels::PanelClicked, this, [this](Panel panel) {
    if (panel == Panel::kErrors) Run("StatusBar1_PanelClick", [&] { ToggleErrorBoxes(session_); });
  });
}

void MainWindow::PickDisplay() {
  Run("mnuDisplay_Click", [this] {
    const int item =
        session_.platform.shell.ShowPopup(DisplayMenuEntries(), session_.project.DisplayItem);
    if (item >= 0) PickDisplayItem(session_, item);
  });
}

void MainWindow::FillRecent(QMenu& menu) {
  for (const std::string& path : recent_.Paths()) {
    QAction* action = menu.addAction(PathToQt(path).replace('&', "&&"));
    connect(action, &QAction::triggered, this, [this, path] { OpenFile(path); });
  }
}

void MainWindow::OpenFile(const std::string& path) {
  Run("Fopen_Click", [&] {
    if (session_.platform.files.FileExists(path)) {
      OpenProjectFile(session_, path);
      return;
    }
    recent_.Remove(path);
    session_.platform.dialogs.Show({.title = "Open ZEB Project?",
                                    .text = "The file " + path + " is not there any more.",
                                    .icon = MessageIcon::kWarning});
  });
}

void MainWindow::ClearPicture() {
  picture_->Surface().Clear(ReadDrawingSettings(session_.settings).background);
  picture_->update();
}

// The drawing lets events run, which may change the size or paint what is half drawn.
void MainWindow::Redraw() {
  stale_ = true;
  if (drawing_) return;
  drawing_ = true;
  picture_->setUpdatesEnabled(false);
  const auto finish = qScopeGuard([this] {
    drawing_ = false;
    picture_->setUpdatesEnabled(true);
    picture_->update();
  });
  while (std::exchange(stale_, false)) DrawView(session_, picture_->Surface());
}

void MainWindow::SetBusyPointer(bool busy) {
  busy_ = busy;
  ShowPointer();
}

void MainWindow::SetPicturePointer(PicturePointer shape) {
  pointer_shape_ = shape;
  ShowPointer();
}

void MainWindow::ShowPointer() {
  setCursor(busy_ ? Qt::WaitCursor : Qt::ArrowCursor);
  picture_->setCursor(busy_ ? Qt::WaitCursor : CursorOf(pointer_shape_));
}

void MainWindow::Run(const std::string& procedure, const CommandRunner::Statement& statement) {
  runner_.RunCommand(kModule, procedure, statement);
  if (runner_.IsRunning()) return;
  if (isActiveWindow()) Activate();
  runner_.RunEvent(kModule, "Renew", [this] {
    pointer_.Details().Renew();
    pointer_.Inspector().Renew();
  });
  if (recovery_ != nullptr) runner_.RunEvent(kModule, "Keep", [this] { recovery_->Keep(); });
}

void MainWindow::AfterEvent() {
  menus_.Refresh();
  picture_->update();
  picture_->SetInvitation(Invitation(session_.project));
}

void MainWindow::Activate() {
  if (runner_.IsRunning()) return;
  // A network without pipes is begun in the text of the project data.
  runner_.RunEvent(kModule, "Form_Activate",
                   [this] { static_cast<void>(Form_Activate(session_)); });
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) Activate();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  bool ends = false;
  runner_.RunCommand(kModule, "Form_QueryUnload", [&] { ends = Fexit(session_); });
  event->setAccepted(ends);
  if (!ends) return;
  KeepPlace(session_.settings, *this, kModule);
  if (recovery_ != nullptr) recovery_->Drop();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!runner_.IsRunning() && !DroppedProject(*event->mimeData()).isEmpty())
    event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  OpenFile(PathFromQt(DroppedProject(*event->mimeData())));
}

}  // namespace zeb
