#include "project/project_writer.h"

#include <string_view>

#include "project/backup.h"
#include "project/file_failures.h"
#include "services/dates.h"
#include "services/file_writing.h"
#include "services/number_text.h"
#include "services/project_paths.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kHeadCodeWidth = 30;
constexpr std::string_view kEnd = "END";
constexpr std::string_view kDeletedLine = "Z!Z!";

class FileText {
 public:
  void Line(std::string_view line) {
    bytes_ += line;
    bytes_ += kLineBreak;
  }
  [[nodiscard]] std::string Take() { return std::move(bytes_); }

 private:
  std::string bytes_;
};

// Whoever wrote the file first stays named in it.
void FillOriginAndStamp(Session& session) {
  Project& project = session.project;
  if (project.HeaderVersion.empty()) {
    project.HeaderOrigin.clear();
    project.HeaderStamp.clear();
  }
  if (project.HeaderOrigin.empty() || IsLegacyOrigin(project.HeaderOrigin)) {
    project.HeaderOrigin = session.Identifier;
  }
  if (project.HeaderStamp.empty()) {
    const DateTime now = session.platform.clock.Now();
    project.HeaderStamp = DateText(now) + " " + TimeText(now);
  }
}

void FillCountsAndVersion(Project& project, int version) {
  project.HeaderCounts =
      FormatDigits(project.HeadCodeCount, 3) + "000" + FormatDigits(project.LineCount, 5);
  project.HeaderVersion = PlainText(version);
}

void AddHeader(FileText& file, const Project& project) {
  file.Line(project.HeaderOrigin + "," + project.HeaderStamp + "," + project.HeaderCounts + "," +
            project.HeaderVersion);
}

void AddBareHeader(FileText& file, const Project& project) {
  file.Line(project.HeaderOrigin + "," + project.HeaderStamp + ",,");
}

// The row of the supply that the project names, 0 when none has that name.
int PumpRecordRow(const Project& project) {
  for (int row = 1; row <= project.SupplyCount; ++row) {
    if (Trim(project.SupplyNames[row]) == ItemText(project, Item::kSupply)) return row;
  }
  return 0;
}

std::string PumpRecord(const Project& project) {
  std::string record = ItemText(project, Item::kSupply);
  for (const float value : project.SupplyTable[PumpRecordRow(project)]) {
    record += "|" + PlainText(value);
  }
  return record;
}

void AddWriter(FileText& file, Machine& machine, const std::string& third_line) {
  file.Line(machine.UserName() + "," + machine.ComputerName());
  file.Line(third_line);
  file.Line("");
}

bool IsWritten(const std::string& line) { return !line.empty() && !line.starts_with(kDeletedLine); }

std::string LineAsWritten(const Project& project, int number) {
  const std::string& line = project.PipeLines[number];
  return number > kItemCount ? TrimRight(line) : line;
}

// The END line stands where the project has it, and is added when it is not the last one.
void AddTextLines(FileText& file, const Project& project) {
  std::string line;
  for (int number = 1; number <= project.LineCount; ++number) {
    line = LineAsWritten(project, number);
    if (IsWritten(line)) file.Line(line);
  }
  if (line != kEnd) file.Line(kEnd);
}

void AddTextLinesThenEnd(FileText& file, const Project& project) {
  for (int number = 1; number <= project.LineCount; ++number) {
    const std::string line = LineAsWritten(project, number);
    if (IsWritten(line) && !line.starts_with(kEnd)) file.Line(line);
  }
  file.Line(kEnd);
}

// In memory the path of the project that uses a head code stands behind it.
void AddHeadCodes(FileText& file, const Project& project) {
  for (int code = 1; code <= project.HeadCodeCount; ++code) {
    file.Line(PadOrCut(project.HeadCodeLines[code], kHeadCodeWidth));
  }
}

int VersionOf(SaveMode mode) { return mode == SaveMode::kPumpRecord ? 3 : static_cast<int>(mode); }

std::string ProjectFileText(Session& session, SaveMode mode) {
  Project& project = session.project;
  FileText file;
  FillOriginAndStamp(session);
  if (mode == SaveMode::kLinesOnly) {
    AddBareHeader(file, project);
    AddTextLinesThenEnd(file, project);
    return file.Take();
  }
  FillCountsAndVersion(project, VersionOf(mode));
  AddHeader(file, project);
  if (mode != SaveMode::kVersion1) {
    AddWriter(file, session.platform.machine,
              mode == SaveMode::kPumpRecord ? PumpRecord(project) : std::string());
  }
  AddTextLines(file, project);
  AddHeadCodes(file, project);
  return file.Take();
}

// While SavedCopyPath is set, composing a pipe leaves the project's own line alone.
class ComposeForCopy {
 public:
  ComposeForCopy(Project& project, const std::string& path)
      : project_(project), before_(project.SavedCopyPath) {
    project.SavedCopyPath = path;
  }
  ComposeForCopy(const ComposeForCopy&) = delete;
  ComposeForCopy& operator=(const ComposeForCopy&) = delete;
  ~ComposeForCopy() { project_.SavedCopyPath = before_; }

 private:
  Project& project_;
  std::string before_;
};

void AddComposedPipes(FileText& file, Session& session) {
  Project& project = session.project;
  for (int pipe = 1; pipe <= project.PipeCount; ++pipe) {
    if (project.PipeError[pipe] == kPipeDeleted) continue;
    session.platform.commands.ComposePipeLine(pipe);
    file.Line(project.ComposedLine);
  }
}

std::string CheckedCopyText(Session& session, const std::string& path) {
  Project& project = session.project;
  const ComposeForCopy composing(project, path);
  FileText file;
  FillOriginAndStamp(session);
  FillCountsAndVersion(project, VersionOf(SaveMode::kVersion3));
  AddHeader(file, project);
  AddWriter(file, session.platform.machine, "");
  for (int item = 1; item <= kItemCount; ++item) file.Line(project.PipeLines[item]);
  AddComposedPipes(file, session);
  file.Line(kEnd);
  AddHeadCodes(file, project);
  return file.Take();
}

void NoteSaved(Project& project) {
  project.DataChanged = 0;
  project.AutoSavePending = 0;
  project.UndoDescription = "Data saved";
}

// Nothing to write to: neither a path nor a project that has one.
bool HasNoFile(const Project& project) {
  return project.ProjectPath.empty() || project.ProjectPath == kUntitled;
}

}  // namespace

SaveMode FormatInForce(const Project& project) {
  return static_cast<SaveMode>(static_cast<int>(project.SaveFormat));
}

bool IsLegacyOrigin(const std::string& origin) { return Mid(origin, 3, 1) == ":"; }

bool SaveProject(Session& session, SaveMode mode, const std::string& path) {
  if (path.empty() && HasNoFile(session.project)) return false;
  Shell& shell = session.platform.shell;
  shell.SetBusyPointer(true);
  const std::string target = path.empty() ? RealProjectPath(session) : path;
  BackUpFile(session, target);
  const bool saved = RunFileStatement(session, "Open_Save.SaveProject", 50, [&] {
    WriteFileSafely(session.platform.files, target, ProjectFileText(session, mode));
  });
  if (saved) NoteSaved(session.project);
  shell.SetBusyPointer(false);
  shell.SetPanelPicture(Panel::kSaveState, saved ? kPictureSaved : kPictureUnsaved);
  return saved;
}

void WriteProjectCopy(Session& session, const std::string& path) {
  WriteFileSafely(session.platform.files, path, ProjectFileText(session, SaveMode::kVersion3));
}

bool SaveCheckedCopy(Session& session, const std::string& path) {
  Shell& shell = session.platform.shell;
  shell.SetBusyPointer(true);
  const bool saved = RunFileStatement(session, "Open_Save.SaveCheckedCopy", 20, [&] {
    WriteFileSafely(session.platform.files, path, CheckedCopyText(session, path));
  });
  shell.SetBusyPointer(false);
  return saved;
}

}  // namespace zeb
