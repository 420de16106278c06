#include "project/undo_history.h"

#include <algorithm>
#include "project/head_selection.h"

#include "project/project_bundle.h"
#include "project/project_writer.h"
#include "services/dates.h"
#include "services/number_text.h"
#include "services/paths.h"

namespace zeb {
namespace {

constexpr int kSaveEvery = 5;
constexpr int kShortPathLength = 40;

int NextInRing(int number, int last) { return number >= last ? 1 : number + 1; }

void CountTowardsAutoSave(Session& session, bool changed) {
  Project& project = session.project;
  if (!session.AutoSave) return;
  session.platform.shell.SetPanelPicture(Panel::kSaveState, kPictureUnsaved);
  if (changed && project.AutoSaveCounter == project.AutoSaveEvery) {
    SaveProject(session, SaveMode::kVersion3);
  }
  project.AutoSaveCounter = NextInRing(project.AutoSaveCounter, project.AutoSaveEvery);
}

// A failure goes to the log with the version's slot and the line reached, and the command goes on.
template <class CopyLine>
void CopyLines(Session& session, const char* log_head, CopyLine copy_line) {
  const Project& project = session.project;
  int line = 1;
  try {
    for (; line <= project.LineCount; ++line) copy_line(line);
  } catch (const RuntimeFailure&) {
    session.log.LogError({.text = log_head + PlainText(project.UndoSlot) + " n%=" + PlainText(line),
                          .source = "ZEB.Module3.Revert",
                          .line = line});
  }
}

void StoreVersion(Session& session) {
  Project& project = session.project;
  project.UndoKeep = kLastUndoVersion;
  project.UndoSeq = NextInRing(project.UndoSeq, kLastUndoSequence);
  project.UndoSlot = NextInRing(project.UndoSlot, kLastUndoVersion);
  project.UndoIndex[project.UndoSeq] = {project.UndoSlot, project.LineCount};
  project.UndoNames[project.UndoSlot] =
      project.UndoDescription + " at " + TimeText(session.platform.clock.Now());

  std::vector<std::string>& version = project.UndoLines[project.UndoSlot];
  version.resize(static_cast<std::size_t>(std::max<int>(project.LineCount, 0)));
  CopyLines(session, "UNDO HIS: cver%=", [&](int line) {
    version[static_cast<std::size_t>(line - 1)] = project.PipeLines[line];
  });
}

void KeepForSupport(Session& session) {
  if (!session.VerboseLogging) return;
  session.log.LogError({.text = session.project.UndoDescription, .source = "ZEB.Module3.Revert"});
  savePrjDataToZIP(session);
}

void Store(Session& session, bool changed) {
  Shell& shell = session.platform.shell;
  session.project.AutoSaveEvery = kSaveEvery;
  shell.SetBusyPointer(true);
  CountTowardsAutoSave(session, changed);
  StoreVersion(session);
  shell.SetBusyPointer(false);
  KeepForSupport(session);
}

// Puts the version of UndoSeq back into the lines. Where newer versions have taken an old one's
// slot, the line count is that of the lines that are there.
void RestoreVersion(Session& session) {
  Project& project = session.project;
  project.DataChanged = 1;
  project.AutoSavePending = 0;
  LeaveHeadSelection(session);
  project.UndoSlot = project.UndoIndex[project.UndoSeq].Slot;
  if (project.UndoSlot <= 0) return;

  const std::vector<std::string>& version = project.UndoLines[project.UndoSlot];
  project.LineCount = version.size();
  CopyLines(session, "UNDO ONE: cver%=", [&](int line) {
    project.PipeLines[line] = version[static_cast<std::size_t>(line - 1)];
  });
}

void CheckRestored(Session& session) {
  session.platform.commands.CheckProject(CheckMode::kKeepLines);
  session.platform.shell.Redraw();
}

}  // namespace

void Revert(Session& session) { Store(session, true); }

void StoreUnchangedVersion(Session& session) { Store(session, false); }

void ClearUndoHistory(Project& project) {
  project.UndoSeq = 0;
  project.UndoSlot = 0;
}

UndoForm::UndoForm(Session& session) : session_(session) {
  const Project& project = session.project;
  Caption = "History log for " + ShortPath(project.ProjectPath, kShortPathLength);
  first_sequence_ = std::max(project.UndoSeq - (kLastUndoVersion - 1), 1);
  for (int sequence = first_sequence_; sequence <= project.UndoSeq; ++sequence) {
    Rows.push_back(project.UndoNames[project.UndoIndex[sequence].Slot]);
  }
  Selected = static_cast<int>(Rows.size()) - 1;
}

void UndoForm::lstUndo_Click(int row) {
  Selected = row;
  cmbUndoEnabled = true;
}

void UndoForm::lstUndo_DblClick(int row) {
  lstUndo_Click(row);
  cmbUndo_Click();
}

void UndoForm::cmbUndo_Click() {
  if (Selected < 0 || Selected >= static_cast<int>(Rows.size())) return;
  session_.project.UndoSeq = first_sequence_ + Selected;
  RestoreVersion(session_);
  session_.platform.shell.Close(*this);
  CheckRestored(session_);
}

void UndoForm::cmdCancel_Click() { session_.platform.shell.Close(*this); }

void Fundo(Session& session) {
  UndoForm form(session);
  session.platform.shell.ShowModal(form);
}

void FundoOneStep(Session& session) {
  Project& project = session.project;
  if (project.UndoSeq <= 0 || project.UndoSlot <= 1) return;
  project.UndoSeq -= 1;
  RestoreVersion(session);
  CheckRestored(session);
}

}  // namespace zeb
