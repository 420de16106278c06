#pragma once

#include <QMainWindow>
#include <QMenu>
#include <QToolBar>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "ui/feature_switches.h"
#include "ui/main_menu.h"

namespace zeb {

// Fills a window's menu bar and tool bars from the tables of the main menu.
class MenuBuilder {
 public:
  using Runner = std::function<void(const MenuCommand& command)>;

  // `run` runs a command that was picked; `fill_recent` fills the list of the last projects.
  MenuBuilder(QMainWindow& window, Session& session, FeatureSwitches& switches, Runner run,
              std::function<void(QMenu&)> fill_recent);

  void AddMenus();
  void AddToolBars();
  // Shows what is possible, and what is on and off.
  void Refresh();

 private:
  struct Tick {
    QAction* action;
    const MenuCommand* command;
  };

  void AddMenu(const MenuTitle& title);
  void AddCommand(QMenu& menu, const MenuTitle& title, const MenuCommand& command);
  void AddRecent(QMenu& menu, const MenuCommand& command);
  void AddToolBar(const ToolBarTitle& title);

  QMainWindow& window_;
  Session& session_;
  FeatureSwitches& switches_;
  Runner run_;
  std::function<void(QMenu&)> fill_recent_;
  std::map<std::string, QAction*> actions_;
  std::vector<Tick> ticks_;
};

}  // namespace zeb
