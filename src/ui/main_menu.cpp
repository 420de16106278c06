#include "ui/main_menu.h"

#include "calc/calculate_command.h"
#include "calc/operating_heads.h"
#include "calc/unsized_pipes.h"
#include "lifecycle/project_commands.h"
#include "model/model_state.h"
#include "project/project_data_form.h"
#include "project/save_commands.h"
#include "project/undo_history.h"
#include "ui/tools_menu.h"
#include "view/display_items.h"
#include "view/draw_view.h"
#include "view/pan.h"
#include "view/pointer_command.h"
#include "view/pointer_machine.h"
#include "view/view_commands.h"
#include "view/zoom.h"

namespace zeb {
namespace {

// A command that needs the session only.
template <class Command>
std::function<void(WindowContext&)> On(Command command) {
  return [command](WindowContext& window) { command(window.session); };
}

bool IsCalculated(const Session& session) {
  return session.project.ModelState == model_state::kCalculated;
}

MenuCommand Line() { return {.name = {}}; }

MenuTitle FileMenu() {
  return {"Ffile",
          "&File",
          {},
          {{.name = "Fnew",
            .text = "&New",
            .tip = "Begins a new project",
            .shortcut = "Ctrl+N",
            .icon = "new",
            .run = On(Fnew)},
           {.name = "Fopen",
            .text = "&Open...",
            .tip = "Opens a project file",
            .shortcut = "Ctrl+O",
            .icon = "open",
            .run = On(Fopen)},
           {.name = kRecentCommand, .text = "&Recent projects"},
           Line(),
           {.name = "Fsav",
            .text = "&Save",
            .tip = "Saves the project",
            .shortcut = "Ctrl+S",
            .icon = "save",
            .run = On(Fsav),
            .features = {Feature::kSave}},
           {.name = "Fsave",
            .text = "Save &As...",
            .tip = "Saves the project under another name and goes on with that",
            .shortcut = "Ctrl+Shift+S",
            .run = On(Fsave),
            .features = {Feature::kSaveAs}},
           {.name = "FsaveVersion",
            .text = "&Version Save",
            .tip = "Saves a numbered copy beside the project",
            .run = On(FsaveVersion),
            .features = {Feature::kSave}},
           Line(),
           {.name = "Fexit",
            .text = "E&xit",
            .tip = "Ends the program",
            .shortcut = "Ctrl+Q",
            .run = [](WindowContext& window) { window.exits = true; }}}};
}

MenuTitle EditMenu() {
  return {"Fedit",
          "&Edit",
          {Feature::kEditMenu},
          {{.name = "FundoOneStep",
            .text = "&Undo",
            .tip = "Goes back to the version before",
            .shortcut = "Ctrl+Z",
            .icon = "undo",
            .run = On(FundoOneStep),
            .features = {Feature::kUndo}},
           {.name = "Fundo",
            .text = "Undo &history...",
            .tip = "Lists the versions to go back to",
            .shortcut = "Ctrl+Shift+Z",
            .icon = "history",
            .run = On(Fundo),
            .features = {Feature::kUndo}},
           Line(),
           {.name = "Fdata",
            .text = "&Project data...",
            .tip = "Items, head codes, water supplies and pipe lines of the project",
            .shortcut = "Ctrl+D",
            .icon = "project_data",
            .run = On(ShowProjectData)}}};
}

MenuTitle DrawMenu() {
  return {"Fdraw",
          "&Draw",
          {Feature::kDrawMenu},
          {{.name = "Dview",
            .text = "&View pipe details",
            .tip = "A click near the centre of a pipe shows its data",
            .shortcut = "F2",
            .icon = "view",
            .run = On(Dview)},
           {.name = "munInspect",
            .text = "Pipe &properties",
            .tip = "A window that follows each press on the drawing",
            .shortcut = "F4",
            .icon = "inspect",
            .run = [](WindowContext& window) { window.pointer.Inspector().munInspect(); }}}};
}

struct ViewLook {
  std::string_view name;
  std::string_view tip;
  std::string_view shortcut;
};

constexpr std::array kViewLooks{
    ViewLook{"Vpzout", "The whole network from above", "Ctrl+1"},
    ViewLook{"Vfront", "Looking north", "Ctrl+2"},
    ViewLook{"Vside", "Looking west, with north to the left", "Ctrl+3"},
    ViewLook{"Visolbl", "Isometric from south west", "Ctrl+4"},
    ViewLook{"Visobr", "Isometric from south east", "Ctrl+5"},
    ViewLook{"Visotl", "Isometric from north west", "Ctrl+6"},
    ViewLook{"Visotr", "Isometric from north east", "Ctrl+7"},
    ViewLook{"Zinall", "Drag a box around the pipes to zoom in on", "F6"},
    ViewLook{"Zinspec", "The same for the pipes between two heights", "Shift+F6"}};

MenuCommand ViewEntry(const ViewMenuEntry& entry) {
  const auto* look = std::ranges::find(kViewLooks, entry.name, &ViewLook::name);
  return {.name = entry.name,
          .text = entry.text,
          .tip = look->tip,
          .shortcut = look->shortcut,
          .icon = entry.key,
          .run = On(entry.run)};
}

MenuTitle ViewMenuTitle() {
  MenuTitle menu{"Fview", "&View", {Feature::kViewMenu}, {}};
  for (const ViewMenuEntry& entry : ViewMenu()) {
    if (entry.name == "Zinall") menu.commands.push_back(Line());
    menu.commands.push_back(ViewEntry(entry));
  }
  menu.commands.push_back({.name = "Vheight",
                           .text = "&Restrict heights...",
                           .tip = "The heights that later elevations and isometrics show",
                           .shortcut = "Ctrl+H",
                           .icon = "heights",
                           .run = On(Vheight)});
  menu.commands.push_back({.name = "mnuFitAll",
                           .text = "Show a&ll",
                           .tip = "Ends the zoom and keeps the view",
                           .shortcut = "Ctrl+0",
                           .run = On(FitAll)});
  return menu;
}

MenuTitle DisplayMenu() {
  MenuTitle menu{"Fdisp", "D&isplay", {Feature::kDisplayMenu}, {}};
  // The texts and names must outlive the table.
  static const std::vector<std::string> entries = DisplayMenuEntries();
  static const std::vector<std::string> names = [] {
    std::vector<std::string> numbered;
    for (std::size_t item = 0; item < entries.size(); ++item)
      numbered.push_back("mnuDisplay" + std::to_string(item));
    return numbered;
  }();
  for (std::size_t index = 0; index < entries.size(); ++index) {
    const int item = static_cast<int>(index);
    menu.commands.push_back(
        {.name = names[index],
         .text = entries[index],
         .tip = "Shown beside the pipes",
         .run = [item](WindowContext& window) { PickDisplayItem(window.session, item); },
         .is_ticked =
             [item](const Session& session) { return session.project.DisplayItem == item; }});
  }
  return menu;
}

MenuTitle CalculateMenu() {
  return {"Fcalc",
          "&Calculate",
          {Feature::kCalculateMenu},
          {{.name = "Ccall",
            .text = "&Calculate",
            .tip = "Balances the system with the picked heads, or with all of them",
            .shortcut = "F12",
            .icon = "calculate",
            .run = On(Ccall)},
           Line(),
           {.name = "Cind",
            .text = "&Individual heads",
            .tip = "Picks the heads that operate, one by one",
            .shortcut = "F9",
            .icon = "calcSelection",
            .run = On(Cind)},
           {.name = "Cboxes",
            .text = "&Groups of heads",
            .tip = "Picks the heads that operate by boxes",
            .shortcut = "Shift+F9",
            .icon = "calcGroup",
            .run = On(Cboxes)},
           {.name = "Ccurr",
            .text = "C&hange the present heads",
            .tip = "Goes on with the heads that are picked",
            .shortcut = "Ctrl+F9",
            .run = On(Ccurr)},
           Line(),
           {.name = "Dcalc",
            .text = "&Summary...",
            .tip = "Shows the summary of the calculation again",
            .shortcut = "F11",
            .icon = "summary",
            .run = On(Dcalc),
            .is_enabled = IsCalculated},
           Line(),
           {.name = "mnuCalcZeroPipe",
            .text = "&Remove all pipe sizes...",
            .tip = "Makes every pipe one that a calculation sizes",
            .run = On(mnuCalcZeroPipe_Click)},
           {.name = "mnuCalcSetPipe",
            .text = "&Keep the calculated sizes...",
            .tip = "Writes the sizes of the unsized pipes into the project",
            .run = On(mnuCalcSetPipe_Click)}}};
}

}  // namespace

const std::vector<MenuTitle>& MainMenus() {
  static const std::vector<MenuTitle> menus{FileMenu(),      EditMenu(),    DrawMenu(),
                                            ViewMenuTitle(), DisplayMenu(), CalculateMenu(),
                                            ToolsMenu(),     HelpMenu()};
  return menus;
}

const std::vector<ToolBarTitle>& MainToolBars() {
  static const std::vector<ToolBarTitle> bars{
      {"tb_file",
       "File",
       {},
       {{"new", "Fnew"},
        {"open", "Fopen"},
        {"save", "Fsav"},
        {},
        {"undo", "FundoOneStep"},
        {"history", "Fundo"},
        {"data", "Fdata"}}},
      {"tb_view",
       "View",
       {Feature::kToolBars},
       {{"plan", "Vpzout"},
        {"frontView", "Vfront"},
        {"sideView", "Vside"},
        {"swView", "Visolbl"},
        {"seView", "Visobr"},
        {"nwView", "Visotl"},
        {"neView", "Visotr"},
        {"zoom", "Zinall"}}},
      {"tb_draw", "Draw", {Feature::kToolBars}, {{"view", "Dview"}, {"inspect", "munInspect"}}},
      {"tb_calc",
       "Calculate",
       {Feature::kToolBars},
       {{"calculate", "Ccall"},
        {"calcSelection", "Cind"},
        {"calcGroup", "Cboxes"},
        {"summary", "Dcalc"}}}};
  return bars;
}

}  // namespace zeb
