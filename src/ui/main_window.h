#pragma once

#include <QMainWindow>

#include "lifecycle/recovery.h"
#include "ui/command_runner.h"
#include "ui/feature_switches.h"
#include "ui/form_dialog.h"
#include "ui/menu_builder.h"
#include "ui/picture_widget.h"
#include "ui/recent_files.h"
#include "ui/status_panels.h"
#include "view/pointer_machine.h"

namespace zeb {

// The main window ZEBF03: menus, tool bars, the picture and the status panels.
class MainWindow final : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(Session& session);

  [[nodiscard]] PictureWidget& Picture() { return *picture_; }
  [[nodiscard]] StatusPanels& Panels() { return *panels_; }
  [[nodiscard]] FeatureSwitches& Switches() { return switches_; }
  [[nodiscard]] const Ui& TheUi() const { return ui_; }

  // Brings up the window where it last was.
  void Start();
  void ClearPicture();
  void Redraw();
  void SetBusyPointer(bool busy);
  void SetPicturePointer(PicturePointer shape);
  // From now on unsaved changes are kept there after each command.
  void KeepRecovery(Recovery& recovery) { recovery_ = &recovery; }
  void AddRecentFile(const std::string& path) { recent_.Add(path); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void ConnectPicture();
  void FillRecent(QMenu& menu);
  void OpenFile(const std::string& path);
  void PickDisplay();
  void Activate();
  void Run(const std::string& procedure, const CommandRunner::Statement& statement);
  void AfterEvent();
  void ShowPointer();

  Session& session_;
  CommandRunner runner_;
  Ui ui_;
  RecentFiles recent_;
  FeatureSwitches switches_;
  PictureWidget* picture_;
  StatusPanels* panels_;
  PointerMachine pointer_;
  MenuBuilder menus_;
  Recovery* recovery_ = nullptr;
  PicturePointer pointer_shape_ = PicturePointer::kDefault;
  bool busy_ = false;
  bool drawing_ = false;
  bool stale_ = false;  // a redraw was asked for since the last one began
};

}  // namespace zeb
