#include "lifecycle/startup.h"

#include "lifecycle/folders_setup.h"
#include "lifecycle/session_state.h"
#include "project/open_project.h"
#include "services/number_text.h"
#include "services/paths.h"
#include "services/procedure.h"
#include "services/text.h"
#include "zeb_version.h"

namespace zeb {
namespace {

constexpr int kSaveFormat = 3;
constexpr int kMostPipes = 5019;
constexpr int kMostHeads = 1500;
constexpr int kMostLoops = 1000;
constexpr int kWeldSize = 65;

// Values of the whole run, which clearing the model must not lose.
void SetLimits(Project& project) {
  project.SaveFormat = kSaveFormat;
  project.MaxPipes = kMostPipes;
  project.MaxHeads = kMostHeads;
  project.MaxLoops = kMostLoops;
  project.UndoKeep = kLastUndoVersion;
}

void SetUnits(Units& units) {
  units.SetPressureUnit(1);
  units.SetFlowUnit(1);
}

// Automatic saving is on unless it was switched off.
void ReadAutoSave(Session& session) {
  Settings& settings = session.settings;
  if (!settings.HasIniValue(setting::kAutoSave)) settings.SetIniValue(setting::kAutoSave, "True");
  session.AutoSave = settings.GetIniValue(setting::kAutoSave) == "True";
}

void ReadIdentifier(Session& session) {
  Settings& settings = session.settings;
  session.Identifier = settings.GetIniValue(setting::kIdentifier);
  if (!session.Identifier.empty()) return;
  session.Identifier = session.platform.machine.NewIdentifier();
  settings.SetIniValue(setting::kIdentifier, session.Identifier);
}

void ClearModel(Project& project) {
  static_cast<SystemValues&>(project) = {};
  project.PipeLines.Clear();
  SetLimits(project);
}

void SetSessionConstants(Project& project, const std::string& program_folder) {
  project.ProductName = "ZEB";
  project.WeldSize = kWeldSize;
  project.RuleType = kRulesGeneral;
  project.ViewName = "Plan";
  project.PipeDataFile = "STD_PIPE.PDT";
  project.ProjectFolder = program_folder;
  project.StandardFolder = program_folder;
  project.ResultFolder = program_folder;
  SetDefaultCalculationFigures(project);
}

}  // namespace

std::string VersionText() {
  return PlainText(kVersionMajor) + "." + PlainText(kVersionMinor) + "." +
         PlainText(kVersionRevision);
}

void TolvanSetup(Session& session) {
  SetLimits(session.project);
  SetUnits(session.units);
  session.project.SuppressBoreCheck = false;
  ResolveFolders(session);
  Procedure procedure(session, "Setup", "TolvanSetup");
  procedure.Step(60, [&] { ReadAutoSave(session); });
  procedure.Step(70, [&] { ReadIdentifier(session); });
}

void ReadCommandLine(Session& session, const std::string& command_text) {
  constexpr std::size_t kShortest = 4;
  const std::string text = Trim(command_text);
  if (text.size() <= kShortest) return;
  const std::string path = text.substr(1, text.size() - 2);
  if (session.platform.files.FileExists(path)) session.CommandFile = path;
}

bool LoadDesignAuthorities(Session& session) {
  const std::string folder = AddBackSlash(session.folders.Program);
  FileSystem& files = session.platform.files;
  if (!files.FileExists(folder + "DesignAuth_V2.dat") &&
      !files.FileExists(folder + "ResDesignAuth.dat")) {
    session.platform.dialogs.Show({.title = "Missing File Error",
                                   .text = "Sorry ZEB cannot continue without the "
                                           "DesignAuth_v2.dat file or ResDesignAuth.dat files.",
                                   .icon = MessageIcon::kStop});
    return false;
  }
  Procedure procedure(session, "DesignAuth", "ReadCsvFile");
  procedure.Step(10, [&] { session.authorities.ReadArchive(session.folders.Program); });
  return true;
}

void StartUpfrm(Session& session) {
  ClearModel(session.project);
  SetSessionConstants(session.project, session.folders.Program);
}

bool RunStartStep(Session& session, int number, const std::function<void()>& statement) {
  for (;;) {
    try {
      statement();
      return true;
    } catch (const RuntimeFailure& failure) {
      const Answer answer =
          session.platform.dialogs.Show({.title = session.project.ProductName,
                                         .text = failure.Description() + std::string(kLineBreak) +
                                                 "ZEB Startup at line " + PlainText(number),
                                         .icon = MessageIcon::kQuestion,
                                         .buttons = MessageButtons::kAbortRetryIgnore,
                                         .default_button = 2});
      if (answer != Answer::kRetry) return answer == Answer::kIgnore;
    }
  }
}

bool LoadMainForm(Session& session) {
  Shell& shell = session.platform.shell;
  return RunStartStep(session, 60,
                      [&] {
                        shell.SetPanel(Panel::kErrors, "[ON]");
                        shell.SetTitle(session.project.ProductName);
                      }) &&
         RunStartStep(session, 80, [&] { shell.Enable(Feature::kUndo, false); });
}

void checkCommandLine(Session& session) {
  if (!session.CommandFile.empty()) OpenProject(session, session.CommandFile);
}

void StartWithoutWindow(Session& session) {
  session.AutoSave = false;
  session.Backups = false;
  SetUnits(session.units);
  ResolveInstalledFolders(session);
  StartUpfrm(session);
  session.Identifier = session.platform.machine.NewIdentifier();
}

bool StartUpForm::Form_Load() {
  TolvanSetup(session_);
  ReadCommandLine(session_, command_text_);
  if (!LoadDesignAuthorities(session_)) return false;
  Version = VersionText();
  return true;
}

bool StartUpForm::cmdContinue_Click() {
  StartUpfrm(session_);
  ReadInZEBLast(session_);
  const bool loaded = LoadMainForm(session_);
  if (loaded) checkCommandLine(session_);
  session_.platform.shell.Close(*this);
  return loaded;
}

}  // namespace zeb
