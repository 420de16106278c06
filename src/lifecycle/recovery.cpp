#include "lifecycle/recovery.h"

#include <functional>
#include <vector>

#include "lifecycle/session_state.h"
#include "project/open_project.h"
#include "project/project_location.h"
#include "project/project_reader.h"
#include "project/project_writer.h"
#include "services/dates.h"
#include "services/file_writing.h"
#include "services/paths.h"
#include "services/project_paths.h"
#include "services/text.h"

namespace zeb {
namespace {

template <class Value>
void Mix(std::size_t& hash, const Value& value) {
  hash = hash * 31 + std::hash<Value>{}(value);
}

// The path of a project that was never saved.
std::string PathOf(Session& session) {
  return session.project.ProjectPath == kUntitled ? kUntitled : RealProjectPath(session);
}

}  // namespace

std::string Recovery::CopyPath() const {
  return AddBackSlash(session_.folders.UserDataFolder) + "recovery.zeb";
}

// The project's path and the time of the copy. It is written last, so that a copy with a note is
// whole.
std::string Recovery::NotePath() const {
  return AddBackSlash(session_.folders.UserDataFolder) + "recovery.txt";
}

std::size_t Recovery::Content() const {
  const Project& project = session_.project;
  std::size_t hash = 17;
  Mix(hash, project.ProjectPath);
  for (int line = 1; line <= project.LineCount; ++line) Mix(hash, project.PipeLines[line]);
  for (int code = 1; code <= project.HeadCodeCount; ++code) Mix(hash, project.HeadCodeLines[code]);
  return hash;
}

std::size_t Recovery::Supplies() const {
  const Project& project = session_.project;
  std::size_t hash = 17;
  for (int row = 1; row <= project.SupplyCount; ++row) {
    Mix(hash, project.SupplyNames[row]);
    for (const float value : project.SupplyTable[row]) Mix(hash, value);
  }
  return hash;
}

void Recovery::Keep() {
  KeepProject();
  KeepSupplies();
}

void Recovery::KeepSupplies() {
  const std::size_t supplies = Supplies();
  if (supplies == kept_supplies_) return;
  kept_supplies_ = supplies;
  Try(&Recovery::WriteSession);
}

void Recovery::WriteSession() { WriteSessionState(session_); }

void Recovery::KeepProject() {
  const Project& project = session_.project;
  if (project.DataChanged <= 0 || project.LineCount <= kFewestLines) {
    if (kept_) Drop();
    return;
  }
  const std::size_t content = Content();
  if (kept_ && content == kept_content_) return;
  kept_content_ = content;
  kept_ = true;
  Try(&Recovery::WriteCopy);
}

void Recovery::Try(void (Recovery::*write)()) {
  try {
    (this->*write)();
  } catch (const RuntimeFailure& failure) {
    session_.log.LogError({.text = failure.Description(), .source = "ZEB.Recovery.Keep"});
  }
}

void Recovery::WriteCopy() {
  WriteProjectCopy(session_, CopyPath());
  const DateTime now = session_.platform.clock.Now();
  WriteFileSafely(session_.platform.files, NotePath(),
                  PathOf(session_) + std::string(kLineBreak) + DateText(now) + " " + TimeText(now) +
                      std::string(kLineBreak));
}

bool Recovery::Offer() {
  kept_supplies_ = Supplies();
  FileSystem& files = session_.platform.files;
  if (!files.FileExists(NotePath()) || !files.FileExists(CopyPath())) return false;
  std::vector<std::string> note = SplitLines(files.ReadFile(NotePath()));
  note.resize(2);
  const std::string gap = std::string(kLineBreak) + std::string(kLineBreak);
  const bool wanted = UserAgrees(session_.platform.dialogs, "Recover lost changes",
                                 "ZEB was cut off. The changes of " + note[1] +
                                     " to this project were not saved:" + gap + note[0] + gap +
                                     "Do you wish to have them back?");
  if (wanted) {
    Restore(note[0]);
  } else {
    Drop();
  }
  return wanted;
}

void Recovery::Restore(const std::string& project_path) {
  Project& project = session_.project;
  project.NewProjectFlag = 0;
  SetProjectFile(session_, CopyPath());
  LeaveProject(session_);
  ReadAndCheck(session_);
  if (project_path == kUntitled) {
    project.ProjectPath = kUntitled;
  } else {
    SetProjectFile(session_, project_path);
    KeepProjectFolder(session_, project_path);
  }
  project.LastProject = project.ProjectPath;
  project.DataChanged = 1;
  session_.platform.shell.SetTitle(project.ProductName + ": " +
                                   ReturnFileName(project.ProjectPath));
  kept_content_ = Content();
  kept_ = true;
}

void Recovery::Drop() {
  kept_ = false;
  FileSystem& files = session_.platform.files;
  for (const std::string& path : {NotePath(), CopyPath()})
    if (files.FileExists(path)) files.Remove(path);
}

}  // namespace zeb
