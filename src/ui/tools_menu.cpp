#include "ui/tools_menu.h"

#include "lifecycle/options_form.h"
#include "lifecycle/session_state.h"
#include "project/empty_tmp.h"
#include "services/authority_form.h"
#include "services/support_bundle.h"
#include "ui/about.h"
#include "ui/error_boxes.h"

namespace zeb {
namespace {

void ShowAuthorities(Session& session) {
  Auth form(session);
  session.platform.shell.ShowModal(form);
}

void ShowOptions(Session& session) {
  OptionsForm form(session);
  session.platform.shell.ShowModal(form);
}

void ToggleAutoSave(Session& session) {
  session.AutoSave = !session.AutoSave;
  session.settings.SetIniValue(setting::kAutoSave, session.AutoSave ? "True" : "False");
}

template <class Command>
std::function<void(WindowContext&)> On(Command command) {
  return [command](WindowContext& window) { command(window.session); };
}

std::vector<MenuCommand> Switches() {
  return {{.name = "mnuErrorBoxes",
           .text = "Show &error boxes",
           .tip = "Each error of a check is shown in a box of its own",
           .run = On(ToggleErrorBoxes),
           .is_ticked = [](const Session& session) { return !session.SuppressErrors; }},
          {.name = "mnuAutoSave",
           .text = "&Automatic saving",
           .tip = "Every fifth change saves the project",
           .run = On(ToggleAutoSave),
           .is_ticked = [](const Session& session) { return session.AutoSave; }},
          {.name = "mnuVerboseLog",
           .text = "&Verbose logging",
           .tip = "Failures and changes go to the error log",
           .run = On([](Session& session) { session.VerboseLogging = !session.VerboseLogging; }),
           .is_ticked = [](const Session& session) { return session.VerboseLogging; }}};
}

std::vector<MenuCommand> Setup() {
  return {{.name = "mnuOptions",
           .text = "&Options...",
           .tip = "What new projects begin with, and how the drawing looks",
           .shortcut = "Ctrl+,",
           .icon = "options",
           .run = On(ShowOptions)},
          {.name = "mnuDesignAuth",
           .text = "&Design Authority...",
           .tip = "Which design authorities are offered",
           .run = On(ShowAuthorities)}};
}

std::vector<MenuCommand> Care() {
  return {{.name = "mnuResetZEBlast",
           .text = "&Reset session file",
           .tip = "Puts all but the water supplies back to what a first session has",
           .run = On(mnuResetZEBlast)},
          {.name = "mnuEmptyTmp",
           .text = "Delete &TMP folder files...",
           .tip = "Deletes the backups in the folder tmp",
           .run = On(EmptyTmpFolder)},
          {.name = "mnuErrorData",
           .text = "&Pack data for support",
           .tip = "Packs logs and settings into ZEB_error_data.zip on the desktop",
           .run = On(ZEB_error_dat)},
          {.name = "mnuDelErrorLog",
           .text = "De&lete error logs",
           .tip = "Deletes the error log and the packed data",
           .run = On(delErrorLogFiles)}};
}

}  // namespace

MenuTitle ToolsMenu() {
  MenuTitle menu{"Ftools", "&Tools", {Feature::kToolsMenu}, {}};
  for (const std::vector<MenuCommand>& group : {Setup(), Switches(), Care()}) {
    if (!menu.commands.empty()) menu.commands.push_back({.name = {}});
    menu.commands.insert(menu.commands.end(), group.begin(), group.end());
  }
  return menu;
}

MenuTitle HelpMenu() {
  return {"Fhelp",
          "&Help",
          {},
          {{.name = "mnuAbout",
            .text = "&About ZEB",
            .tip = "Tells the version of the program",
            .icon = "zeb",
            .run = On(ShowAbout)}}};
}

}  // namespace zeb
