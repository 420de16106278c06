#include "ui/menu_builder.h"

#include <QMenuBar>
#include <QToolButton>
#include <utility>

#include "ui/icons.h"

namespace zeb {
namespace {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// "Open (Ctrl+O)" with the tip below it.
QString ToolTip(const QAction& action) {
  const QString name = action.text().remove('&').remove("...");
  const QString key = action.shortcut().toString(QKeySequence::NativeText);
  const QString title = key.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, key);
  return QStringLiteral("<b>%1</b><br>%2")
      .arg(title.toHtmlEscaped(), action.whatsThis().toHtmlEscaped());
}

}  // namespace

MenuBuilder::MenuBuilder(QMainWindow& window, Session& session, FeatureSwitches& switches,
                         Runner run, std::function<void(QMenu&)> fill_recent)
    : window_(window),
      session_(session),
      switches_(switches),
      run_(std::move(run)),
      fill_recent_(std::move(fill_recent)) {}

void MenuBuilder::AddMenus() {
  for (const MenuTitle& title : MainMenus()) AddMenu(title);
}

void MenuBuilder::AddMenu(const MenuTitle& title) {
  QMenu* menu = window_.menuBar()->addMenu(Text(title.text));
  menu->setObjectName(Text(title.name));
  menu->setToolTipsVisible(true);
  switches_.Add(*menu->menuAction(), title.features);
  for (const MenuCommand& command : title.commands) {
    if (command.name.empty()) {
      menu->addSeparator();
    } else if (command.name == kRecentCommand) {
      AddRecent(*menu, command);
    } else {
      AddCommand(*menu, title, command);
    }
  }
}

void MenuBuilder::AddCommand(QMenu& menu, const MenuTitle& title, const MenuCommand& command) {
  QAction* action = menu.addAction(Text(command.text));
  action->setObjectName(Text(command.name));
  if (!command.shortcut.empty()) action->setShortcut(QKeySequence(Text(command.shortcut)));
  if (!command.icon.empty()) action->setIcon(ProgramIcon(Text(command.icon)));
  action->setWhatsThis(Text(command.tip));
  action->setToolTip(ToolTip(*action));
  if (command.is_ticked) {
    action->setCheckable(true);
    ticks_.push_back({action, &command});
  }
  switches_.Add(*action, command.features.empty() ? title.features : command.features,
                [this, &command] { return !command.is_enabled || command.is_enabled(session_); });
  QObject::connect(action, &QAction::triggered, &window_, [this, &command] { run_(command); });
  actions_[std::string(command.name)] = action;
}

void MenuBuilder::AddRecent(QMenu& menu, const MenuCommand& command) {
  QMenu* recent = menu.addMenu(Text(command.text));
  recent->setObjectName(Text(command.name));
  QObject::connect(&menu, &QMenu::aboutToShow, recent, [this, recent] {
    recent->clear();
    fill_recent_(*recent);
    recent->menuAction()->setEnabled(!recent->isEmpty());
  });
}

void MenuBuilder::AddToolBars() {
  for (const ToolBarTitle& title : MainToolBars()) AddToolBar(title);
}

void MenuBuilder::AddToolBar(const ToolBarTitle& title) {
  QToolBar* bar = window_.addToolBar(Text(title.text));
  bar->setObjectName(Text(title.name));
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  for (const Feature feature : title.features) switches_.Add(*bar, feature);
  for (const ToolButton& button : title.buttons) {
    if (button.key.empty()) {
      bar->addSeparator();
      continue;
    }
    QAction* action = actions_.at(std::string(button.command));
    bar->addAction(action);
    bar->widgetForAction(action)->setObjectName(Text(button.key));
  }
}

void MenuBuilder::Refresh() {
  switches_.Refresh();
  for (const Tick& tick : ticks_) tick.action->setChecked(tick.command->is_ticked(session_));
}

}  // namespace zeb
