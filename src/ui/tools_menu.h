#pragma once

#include "ui/main_menu.h"

namespace zeb {

[[nodiscard]] MenuTitle ToolsMenu();
[[nodiscard]] MenuTitle HelpMenu();

}  // namespace zeb
