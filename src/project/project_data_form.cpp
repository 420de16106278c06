#include "project/project_data_form.h"

#include <algorithm>

#include "model/model_state.h"
#include "project/backup.h"
#include "project/head_codes.h"
#include "project/head_selection.h"
#include "project/pressure_loss_form.h"
#include "project/project_items.h"
#include "project/project_writer.h"
#include "project/stored_references.h"
#include "services/dates.h"
#include "services/procedure.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr const char* kModule = "ZEBF02";

std::size_t IndexOf(Item item) { return static_cast<std::size_t>(item); }

// Items of one line only: a line break would shift all that follow in the file.
std::string OneLine(const std::string& text) {
  return Trim(ReplaceAll(ReplaceAll(text, "\r", " "), "\n", " "));
}

// The supply is picked from its own list and the comments have a box of their own.
bool IsComboItem(Item item) { return item != Item::kSupply && item != Item::kComments; }

template <class Rows>
std::vector<std::string> FirstRows(const Rows& table, int count) {
  std::vector<std::string> rows;
  for (int row = 1; row <= std::min(count, Rows::kLast); ++row) rows.push_back(table[row]);
  return rows;
}

}  // namespace

ProjectDataForm::ProjectDataForm(Session& session)
    : HeadCodes(session), Supplies(session), session_(session) {}

void ProjectDataForm::Form_Load() {
  Procedure proc(session_, kModule, "Form_Load");
  Caption = session_.project.ProductName + " - Project and Design Area Information - ";
  session_.platform.shell.SetPanel(
      Panel::kHint, "Amend input data as required and click on 'Apply' or 'Cancel' to proceed");
  proc.Step(10, [&] { references_read_ = ReadZEBJobsFile(session_, ZEBJobsPath(session_)); });
  proc.Step(20, [&] { LoadItems(); });
  proc.Step(30, [&] { Supplies.Load(Field(Item::kSupply)); });
  proc.Step(40, [&] { Text.Load(session_); });
}

void ProjectDataForm::LoadItems() {
  for (const ProjectItem& row : kProjectItems) {
    items_[IndexOf(row.item)] = ItemText(session_.project, row.item);
  }
  loaded_items_ = items_;
  if (IsNewProject()) LoadNewProjectItems();
  offered_items_ = items_;
}

void ProjectDataForm::LoadNewProjectItems() {
  const auto fill = [this](Item item, const std::string& text) {
    if (Field(item).empty()) Field(item) = text;
  };
  fill(Item::kPipeData, NewProjectPipeData(session_));
  fill(Item::kAuthority, NewProjectAuthority(session_));
  fill(Item::kFluid, NewProjectFluid(session_));
}

std::string& ProjectDataForm::Field(Item item) { return items_[IndexOf(item)]; }

bool ProjectDataForm::IsNewProject() const { return session_.project.NewProjectFlag == 1; }

bool ProjectDataForm::IsChanged(Item item) const {
  return items_[IndexOf(item)] != loaded_items_[IndexOf(item)];
}

bool ProjectDataForm::CommandsEnabled() const {
  return !HeadCodes.Editing() && !Supplies.Editing();
}

std::vector<std::string> ProjectDataForm::ListOf(Item item) const {
  if (item == Item::kPipeData) return PipeDataFiles();
  if (item == Item::kAuthority) return Authorities();
  const std::string_view key = ItemOf(item).key;
  return key.empty() ? std::vector<std::string>() : ReferencesOf(session_.project, key);
}

std::vector<std::string> ProjectDataForm::PipeDataFiles() const {
  std::vector<std::string> names = session_.platform.files.FileNames(session_.folders.PdtFolder);
  std::erase_if(names, [](const std::string& name) { return !UpperCase(name).ends_with(".PDT"); });
  return names;
}

std::vector<std::string> ProjectDataForm::Authorities() const {
  const std::string& current = items_[IndexOf(Item::kAuthority)];
  std::vector<std::string> names;
  for (const DesignAuthority& authority : session_.authorities.Rows()) {
    if (session_.authorities.DesignAuthInList(authority.name, current)) {
      names.push_back(authority.name);
    }
  }
  return names;
}

std::vector<std::string> ProjectDataForm::HeadCodeRows() const {
  return FirstRows(session_.project.HeadCodeLines, session_.project.HeadCodeCount);
}

std::vector<std::string> ProjectDataForm::SupplyRows() const {
  return FirstRows(session_.project.SupplyNames, session_.project.SupplyCount);
}

void ProjectDataForm::cmdApply_Click() {
  Procedure proc(session_, kModule, "cmdApply_Click");
  proc.Step(10, [&] { RenewPipeDataIfChanged(Item::kPipeData); });
  proc.Step(20, [&] { FillEmptyItems(); });
  proc.Step(30, [&] { StoreItems(); });
  proc.Step(40, [&] { StoreRemainingItems(); });
  if (!proc.Step(50, [&] { Text.Store(session_.project); })) return;
  proc.Step(60, [&] { SaveIfChanged(); });
  proc.Step(70, [&] { CloseForm(); });
  proc.Step(80, [&] { KeepChoicesOfNewProject(); });
  proc.Step(90, [&] { session_.platform.commands.CheckProject(CheckMode::kComposeLines); });
}

// Makes the next check read the pipe data again.
void ProjectDataForm::RenewPipeDataIfChanged(Item item) {
  if (IsChanged(item)) session_.project.PipeSizeCount = 0;
}

void ProjectDataForm::FillEmptyItems() {
  for (const ProjectItem& row : kProjectItems) {
    std::string& text = items_[IndexOf(row.item)];
    if (!IsComboItem(row.item) || !OneLine(text).empty()) continue;
    text = DefaultItemText(session_.project, row.item);
    ++changes_;
  }
  Supplies.FillEmptyFields();
}

void ProjectDataForm::StoreItems() {
  for (const ProjectItem& row : kProjectItems) {
    if (!IsComboItem(row.item)) continue;
    const std::string text = OneLine(items_[IndexOf(row.item)]);
    ItemText(session_.project, row.item) = text;
    if (!row.key.empty() && AddReference(session_.project, row.key, text)) ++changes_;
  }
}

void ProjectDataForm::StoreRemainingItems() {
  const auto text_or_default = [&](Item item, const std::string& text) {
    const std::string line = OneLine(text);
    ItemText(session_.project, item) =
        line.empty() ? DefaultItemText(session_.project, item) : line;
  };
  text_or_default(Item::kComments, Field(Item::kComments));
  RenewPipeDataIfChanged(Item::kAuthority);
  Field(Item::kSupply) = Supplies.SupplyName;
  text_or_default(Item::kSupply, Supplies.SupplyName);
  if (references_read_) SaveZEBJobData(session_);
}

bool ProjectDataForm::IsAnythingChanged() const {
  return changes_ + HeadCodes.Changes > 0 || items_ != loaded_items_ || Text.Edited();
}

void ProjectDataForm::SaveIfChanged() {
  Project& project = session_.project;
  project.DataChanged = 1;
  const bool has_path = !project.ProjectPath.empty() && project.ProjectPath != kUntitled;
  if (!IsAnythingChanged() || IsNewProject() || !has_path) return;
  MakeBackup(session_, project.ProjectPath, kBackupExtension, false);
  session_.platform.shell.SetPanel(Panel::kHint, "Backup File Created!");
  project.DataChanged = 0;
  if (!SaveProject(session_, SaveMode::kVersion3)) project.DataChanged = 1;
}

void ProjectDataForm::CloseForm() {
  session_.project.ModelState = model_state::kStale;
  session_.project.ZoomState = 0;
  LeaveHeadSelection(session_);
  Shell& shell = session_.platform.shell;
  shell.Close(*this);
  // A command that waits for a node or a head of the network before would not draw the new one.
  session_.platform.commands.ViewCommandReset();
  for (const Feature feature :
       {Feature::kCalculateMenu, Feature::kDisplayMenu, Feature::kPrintMenu, Feature::kReport}) {
    shell.Enable(feature, false);
  }
}

void ProjectDataForm::KeepChoicesOfNewProject() {
  if (!IsNewProject()) return;
  session_.settings.SetIniValue(setting::kDefaultAuthorityOfProject,
                                ItemText(session_.project, Item::kAuthority));
  session_.settings.SetIniValue(setting::kDefaultPipeData,
                                ItemText(session_.project, Item::kPipeData));
}

void ProjectDataForm::cmdCancel_Click() {
  Project& project = session_.project;
  if (session_.VerboseLogging) {
    session_.log.LogError({.text = "Calcel Project Date", .source = kModule, .brief = true});
  }
  if (IsNewProject()) {
    project.ProjectPath = kUntitled;
    project.NewProjectFlag = 0;
    project.AutoSavePending = 0;
    project.DataChanged = 0;
  }
  session_.platform.shell.Close(*this);
  RenewTables();
  session_.platform.shell.Redraw();
}

void ProjectDataForm::Form_QueryUnload() {
  const bool typed = items_ != offered_items_ || Text.Edited();
  if (typed && !UserAgrees(session_.platform.dialogs, "Project data",
                           "Do you wish to drop the changes that you have just typed?")) {
    return;
  }
  cmdCancel_Click();
}

// Head codes and supplies are changed at once, so that the tables and results of a cancelled form
// may be those of the values before.
void ProjectDataForm::RenewTables() {
  const bool outdated = HeadCodes.Changes > 0 || Supplies.InForceChanged();
  if (!outdated || session_.project.PipeCount == 0) return;
  LeaveHeadSelection(session_);
  session_.platform.commands.CheckProject(CheckMode::kKeepLines);
}

void ProjectDataForm::cmdIssue_Click() {
  const std::string text =
      NextIssueText(Field(Item::kIssue), DateText(session_.platform.clock.Now()));
  const std::string question = "Do you with to use the Issue number and Date?   " +
                               std::string(kLineBreak) + std::string(kLineBreak) + text;
  if (UserAgrees(session_.platform.dialogs, "Auto Issue Number", question)) {
    Field(Item::kIssue) = text;
  }
}

void ProjectDataForm::cmdDWF_Click() {
  std::string& fluid = Field(Item::kFluid);
  PressureLossForm form(session_, fluid);
  session_.platform.shell.ShowModal(form);
  if (form.Accepted) {
    fluid = form.Fluid;
    return;
  }
  const bool darcy = Contains(fluid, "DWF") || Contains(fluid, "NFPA 750");
  const std::string equation = darcy ? "Hazen-Williams" : "Darcy-Weisbach";
  if (UserAgrees(session_.platform.dialogs, "Pressure loss formula ",
                 "Do you wish to use the " + equation + " equation?")) {
    fluid = darcy ? std::string(kWater) : "DWF DENS=998 VISC=0.95";
  }
}

void ProjectDataForm::cmdCompact_Click() {
  const std::string title = "Compact  Head Codes";
  Dialogs& dialogs = session_.platform.dialogs;
  // The heads of an unchecked project or of edited text are not those of the tables.
  if (session_.project.ModelState < model_state::kChecked || Text.Edited()) {
    dialogs.Show({.title = title,
                  .text = "Apply the project data first, so that they are checked.",
                  .icon = MessageIcon::kInformation});
    return;
  }
  if (!UserAgrees(dialogs, title,
                  "Do you wish to remove heads codes which are not used in this project file  ")) {
    return;
  }
  Procedure proc(session_, kModule, "cmdCompact_Click");
  proc.Step(10, [&] { countHeads(session_); });
  proc.Step(20, [&] { Text.Load(session_); });
  session_.project.DataChanged = 1;
  ++changes_;
}

void ProjectDataForm::ShowStoredReferences(Item item) {
  const std::string_view key = ItemOf(item).key;
  if (key.empty()) return;
  ResetReferencesForm references(session_, key);
  session_.platform.shell.ShowModal(references);
}

void ShowProjectData(Session& session) {
  ProjectDataForm form(session);
  form.Form_Load();
  session.platform.shell.ShowModal(form);
}

}  // namespace zeb
