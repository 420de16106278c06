#include "project/stored_references.h"

#include <algorithm>

#include "project/file_failures.h"
#include "services/file_writing.h"
#include "services/number_text.h"
#include "services/paths.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr std::string_view kDeletedKey = "XXXX";

bool HasKey(const std::string& reference, std::string_view key) {
  return reference.size() > key.size() && reference.starts_with(key) &&
         reference[key.size()] == '=';
}

// The slots of a key's references, ascending.
std::vector<int> SlotsOf(const Project& project, std::string_view key) {
  std::vector<int> slots;
  for (int slot = 1; slot <= project.JobReferenceCount; ++slot) {
    if (HasKey(project.JobReferences[slot], key)) slots.push_back(slot);
  }
  return slots;
}

void StoreLines(Project& project, const std::vector<std::string>& lines) {
  project.JobReferences.Clear();
  project.JobReferenceCount = 0;
  for (const std::string& line : lines) {
    if (project.JobReferenceCount == kLastJobReference) return;
    if (line.size() > 2) project.JobReferences[++project.JobReferenceCount] = line;
  }
}

void BeginFile(FileSystem& files, const std::string& path) {
  files.MakeFolder(ReturnFolder(path));
  WriteFileSafely(files, path, "Started afresh" + std::string(kLineBreak));
}

void DropDeleted(Project& project) {
  std::vector<std::string> kept;
  for (int slot = 1; slot <= project.JobReferenceCount; ++slot) {
    const std::string& reference = project.JobReferences[slot];
    if (!HasKey(reference, kDeletedKey)) kept.push_back(reference);
  }
  StoreLines(project, kept);
}

}  // namespace

std::string ZEBJobsPath(const Session& session) {
  return AddBackSlash(session.folders.UserDataFolder) + "zebjobs.dat";
}

bool ReadZEBJobsFile(Session& session, const std::string& path) {
  return RunFileStatement(session, "readZEBJobsFile", 10, [&] {
    FileSystem& files = session.platform.files;
    if (!files.FileExists(path)) BeginFile(files, path);
    StoreLines(session.project, SplitLines(files.ReadFile(path)));
  });
}

bool SaveZEBJobData(Session& session) {
  std::string text;
  for (int slot = 1; slot <= session.project.JobReferenceCount; ++slot) {
    text += session.project.JobReferences[slot] + std::string(kLineBreak);
  }
  return RunFileStatement(session, "SaveZEBJobData", 10, [&] {
    WriteFileSafely(session.platform.files, ZEBJobsPath(session), text);
  });
}

std::vector<std::string> ReferencesOf(const Project& project, std::string_view key) {
  std::vector<std::string> texts;
  for (const int slot : SlotsOf(project, key)) {
    texts.push_back(project.JobReferences[slot].substr(key.size() + 1));
  }
  return texts;
}

bool AddReference(Project& project, std::string_view key, std::string_view text) {
  const std::vector<std::string> texts = ReferencesOf(project, key);
  const bool stored = std::find(texts.begin(), texts.end(), text) != texts.end();
  if (stored || project.JobReferenceCount >= kMaxReferences) return false;
  project.JobReferences[++project.JobReferenceCount] = std::string(key) + "=" + std::string(text);
  return true;
}

ResetReferencesForm::ResetReferencesForm(Session& session, std::string_view key)
    : session_(session), key_(key) {}

std::vector<std::string> ResetReferencesForm::Rows() const {
  return ReferencesOf(session_.project, key_);
}

void ResetReferencesForm::Command2_Click() {
  std::vector<int> slots = SlotsOf(session_.project, key_);
  if (!slots.empty()) slots.pop_back();
  for (const int slot : slots) {
    session_.project.JobReferences[slot].replace(0, kDeletedKey.size(), kDeletedKey);
  }
  FrameCaption = " Last reference is ";
}

void ResetReferencesForm::Command1_Click() {
  Project& project = session_.project;
  DropDeleted(project);
  if (!SaveZEBJobData(session_)) return;
  session_.platform.shell.SetPanel(
      Panel::kHint,
      SignedText(project.JobReferenceCount) + " lines now stored in " + ZEBJobsPath(session_));
}

}  // namespace zeb
