#include "project/project_reader.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "model/model_state.h"
#include "project/backup.h"
#include "project/file_failures.h"
#include "project/fresh_project.h"
#include "project/head_selection.h"
#include "project/initial_head_codes.h"
#include "project/project_writer.h"
#include "project/undo_history.h"
#include "services/field_reader.h"
#include "services/number_text.h"
#include "services/paths.h"
#include "services/project_paths.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr std::string_view kSource = "Open_Save.ReadProject";
constexpr std::string_view kEnd = "END";
constexpr int kHeadCodeWidth = 30;
constexpr int kShortPathLength = 40;

enum class Format { kUnknown, kLegacy, kVersion1, kVersion2, kVersion3 };

struct RenamedAuthority {
  std::string_view stored;
  std::string_view present;
};
constexpr std::array kRenamedAuthorities{
    RenamedAuthority{"BS 9251, Residential and domestic sprinklers",
                     "BS 9251 : Residential and domestic sprinklers"},
    RenamedAuthority{"AS2118.1, Standards Australia - Fire Sprinkler",
                     "AS2118.1 : Standards Australia - Fire Sprinkler"},
};

void ClearBeforeReading(Session& session) {
  session.platform.shell.ClearPicture();
  session.project.LineCount = 0;
  LeaveHeadSelection(session);
}

void AnnounceReading(Session& session) {
  const Project& project = session.project;
  Shell& shell = session.platform.shell;
  shell.SetPanel(Panel::kHint, "Reading in: " + ShortPath(project.ProjectPath, kShortPathLength));
  shell.SetTitle(project.ProductName + ": " + ReturnFileName(project.ProjectPath));
  shell.SetBusyPointer(true);
}

void EraseBeforeReading(Project& project) {
  EraseProject(project);
  project.PipeSizeCount = 0;
  project.NewProjectFlag = 0;
}

// Within quotes a header field may hold a comma, but the header is written without quotes.
std::string WithoutCommas(std::string field) { return ReplaceAll(std::move(field), ",", " "); }

// The last header field ends the line, whatever else stands on it. One character counts.
std::string ReadVersion(FieldReader& input) {
  const std::string rest = Trim(input.Line());
  if (rest.empty()) return {};
  return Trim(Left(FieldReader(rest).Field(), 1));
}

void ReadHeader(Project& project, FieldReader& input) {
  project.HeaderOrigin = WithoutCommas(input.Field());
  project.HeaderStamp = WithoutCommas(input.Field());
  project.HeaderCounts = input.Field();
  project.HeaderVersion = ReadVersion(input);
}

Format FormatOf(const Project& project) {
  if (IsLegacyOrigin(project.HeaderOrigin)) return Format::kLegacy;
  if (project.HeaderVersion == "1") return Format::kVersion1;
  if (project.HeaderVersion == "2") return Format::kVersion2;
  if (project.HeaderVersion == "3") return Format::kVersion3;
  return Format::kUnknown;
}

void ShowUnknownFormat(Dialogs& dialogs) {
  dialogs.Show({.title = "File Error - Unknown file format",
                .text = "Unknown file format please update to a newer version of ZEB ",
                .icon = MessageIcon::kStop});
}

// Only the first of the three counts matters; a word that is no number still spoils the file.
void TakeCounts(Project& project) {
  const std::string& counts = project.HeaderCounts;
  const Int16 head_codes = RoundToInt16(ReadNumberField(Left(counts, 3)));
  if (head_codes > kLastHeadCode) throw RuntimeFailure(failure::kSubscriptOutOfRange);
  (void)ReadNumberField(Mid(counts, 4, 3));
  (void)ReadNumberField(Right(counts, 5));
  project.HeadCodeCount = head_codes;
}

void SkipSideInformation(FieldReader& input) {
  constexpr int kSideLines = 3;
  for (int line = 0; line < kSideLines; ++line) (void)input.Line();
}

// The text lines up to END and the head codes behind it. Answers the number of text lines.
int ReadLines(Project& project, FieldReader& input, bool keep_empty_lines) {
  int lines = 0;
  int head_codes = 0;
  bool end_seen = false;
  while (input.MoreLines()) {
    std::string line = input.Line();
    if (line.empty() && !keep_empty_lines) continue;
    if (!end_seen && Trim(line) == kEnd) {
      end_seen = true;
      project.PipeLines[++lines] = kEnd;
      line = input.Line();
    }
    if (!end_seen) {
      project.PipeLines[++lines] = Trim(line);
    } else if (!line.empty() && line != kEnd) {
      project.HeadCodeLines[++head_codes] = PadOrCut(line, kHeadCodeWidth);
    }
  }
  return lines;
}

int ReadLegacyLines(Project& project, FieldReader& input) {
  int lines = 0;
  while (input.MoreLines()) project.PipeLines[++lines] = Trim(input.Line());
  return lines;
}

int ReadBody(Project& project, FieldReader& input, Format format) {
  project.HeadCodeLines.Clear();
  if (format == Format::kLegacy) return ReadLegacyLines(project, input);
  TakeCounts(project);
  if (format != Format::kVersion1) SkipSideInformation(input);
  return ReadLines(project, input, format == Format::kVersion3);
}

void TranslateAuthority(Project& project) {
  std::string& authority = ItemText(project, Item::kAuthority);
  for (const RenamedAuthority& renamed : kRenamedAuthorities) {
    if (Trim(authority) == renamed.stored) authority = renamed.present;
  }
}

// A file of the oldest kind has no head codes of its own.
bool CompleteByFormat(Session& session, Format format) {
  if (format == Format::kVersion1 || format == Format::kVersion2) {
    TranslateAuthority(session.project);
  }
  if (format != Format::kLegacy) return true;
  return RunFileStatement(session, std::string(kSource), 90, [&] { ReadLegacyHeadCodes(session); });
}

// The number of text lines, or nothing when the file cannot be read.
std::optional<int> ReadFileLines(Session& session, const std::string& path) {
  Project& project = session.project;
  const std::string source(kSource);
  std::string bytes;
  if (!RunFileStatement(session, source, 60,
                        [&] { bytes = session.platform.files.ReadFile(path); })) {
    return std::nullopt;
  }
  FieldReader input(std::move(bytes));
  if (!RunFileStatement(session, source, 70, [&] { ReadHeader(project, input); }))
    return std::nullopt;
  const Format format = FormatOf(project);
  if (format == Format::kUnknown) {
    ShowUnknownFormat(session.platform.dialogs);
    return std::nullopt;
  }
  int lines = 0;
  const bool read =
      RunFileStatement(session, source, 80, [&] { lines = ReadBody(project, input, format); });
  if (!read || !CompleteByFormat(session, format)) return std::nullopt;
  return lines;
}

// What was not read must not be saved over the file, nor what an undo would bring back.
void LeaveUnread(Session& session) {
  session.project.ModelState = model_state::kStale;
  ClearUndoHistory(session.project);
  Shell& shell = session.platform.shell;
  for (const Feature feature : {Feature::kSave, Feature::kSaveAs, Feature::kUndo})
    shell.Enable(feature, false);
  shell.SetBusyPointer(false);
}

void StoreFirstVersion(Session& session) {
  session.platform.shell.Enable(Feature::kUndo, true);
  ClearUndoHistory(session.project);
  session.project.UndoDescription = "As read in from disk";
  StoreUnchangedVersion(session);
}

bool ReadProjectFile(Session& session) {
  const std::string path = RealProjectPath(session);
  BackUpFile(session, path);
  AnnounceReading(session);
  EraseBeforeReading(session.project);
  const std::optional<int> lines = ReadFileLines(session, path);
  if (!lines) return false;
  session.project.LineCount = *lines;
  StoreFirstVersion(session);
  return true;
}

}  // namespace

void ReadProject(Session& session) {
  ClearBeforeReading(session);
  if (session.project.NewProjectFlag != 1 && !ReadProjectFile(session)) {
    LeaveUnread(session);
    return;
  }
  ShowFreshProject(session);
  StoreUnchangedVersion(session);
}

}  // namespace zeb
