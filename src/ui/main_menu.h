#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "platform/shell.h"
#include "services/session.h"

namespace zeb {

class PointerMachine;

// What a command of the main window works on.
struct WindowContext {
  Session& session;
  PointerMachine& pointer;
  bool exits = false;  // a command sets it to close the window once it has ended
};

// One command of the main window.
struct MenuCommand {
  std::string_view name;  // object name; empty for a line between two groups
  std::string_view text = {};
  std::string_view tip = {};
  std::string_view shortcut = {};
  std::string_view icon = {};
  std::function<void(WindowContext&)> run = {};
  // It is enabled while all of these are; those of the menu when it has none of its own.
  std::vector<Feature> features = {};
  std::function<bool(const Session&)> is_enabled = {};  // a further condition
  std::function<bool(const Session&)> is_ticked = {};   // for a command that is on or off
};

struct MenuTitle {
  std::string_view name;
  std::string_view text;
  std::vector<Feature> features;
  std::vector<MenuCommand> commands;
};

struct ToolButton {
  std::string_view key;      // the button's object name; empty for a line between two groups
  std::string_view command;  // the name of its command
};

struct ToolBarTitle {
  std::string_view name;
  std::string_view text;
  std::vector<Feature> features;
  std::vector<ToolButton> buttons;
};

// The command whose place the list of the last projects takes.
inline constexpr std::string_view kRecentCommand = "mnuRecent";

// All menus and tool bars, in their order.
[[nodiscard]] const std::vector<MenuTitle>& MainMenus();
[[nodiscard]] const std::vector<ToolBarTitle>& MainToolBars();

}  // namespace zeb
