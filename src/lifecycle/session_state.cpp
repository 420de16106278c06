#include "lifecycle/session_state.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "services/dates.h"
#include "services/field_reader.h"
#include "services/file_writing.h"
#include "services/find_file.h"
#include "services/number_text.h"
#include "services/paths.h"
#include "services/procedure.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr int kTextColumn = 6;  // behind HEAD= and PUMP=
constexpr int kPairValues = 16;
constexpr int kLibraryLineWidth = 34;
constexpr int kNoPathWidth = 22;

// The gridded layout form before it was ever used.
constexpr std::array<std::string_view, SystemValues::kGridLayoutTexts> kDefaultGridLayout{
    "Quick grid", "10",  "260", "12",  "10",  "36",   "30",    "8",    "9.5",   "18", "0", "0.5",
    "0.5",        "150", "40",  "150", "100", "True", "False", "True", "False", "0",  "4"};

// Calls visit(value) for the six reals behind CALC=, in the order of the file.
template <class Values, class Visit>
void ForEachCalculationReal(Values& values, Visit visit) {
  visit(values.minVel);
  visit(values.maxVel);
  visit(values.maxPD);
  visit(values.SizingPdPerM);
  visit(values.SizingTotalDrop);
  visit(values.SizingMinNominal);
}

void ReadKeptTexts(Session& session, FieldReader& input) {
  Project& project = session.project;
  for (std::string& text : session.SessionTexts) text = input.Field();
  project.LastProject = input.Line();
  (void)input.Line();  // the date of the writing
  project.LastSessionNumber = ValInt16(input.Line());
  for (std::string& text : project.GridLayoutTexts) text = Trim(input.Line());
}

void ReadCalculationFigures(Project& project, FieldReader& input) {
  ForEachCalculationReal(project, [&](float& value) { value = input.Single(); });
  project.SizingMethod = input.Integer();
}

// A point in column 23 tells of a format with one column fewer.
void ReadHeadCode(Project& project, std::string line) {
  if (Mid(line, 23, 1) == ".") line.insert(20, 1, ' ');
  project.HeadCodeCount = std::min(project.HeadCodeCount + 1, kLastHeadCode);
  project.HeadCodeLines[project.HeadCodeCount] = Mid(line, kTextColumn);
}

SupplyValues ReadSupplyValues(FieldReader& input) {
  SupplyValues values{};
  for (const int first : {0, 1}) {
    for (int value = first; value < kPairValues; value += 2) {
      values[static_cast<std::size_t>(value)] = input.Single();
    }
  }
  values[kTankHeightValue] = input.Single();
  return values;
}

// A supply is taken as a whole or not at all.
void ReadSupply(Project& project, const std::string& name, FieldReader& input) {
  SupplyValues values = ReadSupplyValues(input);
  std::string path = input.MoreLines() ? input.Line() : std::string();
  if (UpperCase(name) == "NONE") {
    values[kTankHeightValue] = 0.0F;
    path = std::string(kNoPathWidth, ' ');
  }
  project.SupplyCount = std::min(project.SupplyCount + 1, kLastSupply);
  project.SupplyNames[project.SupplyCount] = name;
  project.SupplyTable[project.SupplyCount] = values;
  project.SupplyPaths[project.SupplyCount] = path;
}

void ReadSections(Project& project, FieldReader& input) {
  while (input.MoreLines()) {
    const std::string line = input.Line();
    if (StartsWithNoCase(line, "CALC=")) {
      ReadCalculationFigures(project, input);
    } else if (StartsWithNoCase(line, "HEAD")) {
      ReadHeadCode(project, line);
    } else if (StartsWithNoCase(line, "PUMP")) {
      ReadSupply(project, Mid(line, kTextColumn), input);
    }
  }
}

// False when the file is damaged; the user has been told.
bool ReadState(Session& session, std::string bytes) {
  Procedure procedure(session, "Startup", "ReadInZEBLast");
  FieldReader input(std::move(bytes));
  return procedure.Step(20, [&] {
    ReadKeptTexts(session, input);
    ReadSections(session.project, input);
  });
}

void ReportMissingFile(Session& session) {
  const std::string text =
      "Unable to find the ZEBLAST.TXT file ZEB cannot continue " + session.folders.SessionFile;
  session.platform.dialogs.Show(
      {.title = "Critical Error ", .text = text, .icon = MessageIcon::kStop});
  session.log.LogError({.text = text, .source = "ZEB.Startup.ReadInZEBLast", .line = 10});
}

void KeepDamagedFile(Session& session) {
  const std::string& path = session.folders.SessionFile;
  CopyFileSafely(session.platform.files, path, ChangeFileExt(path, "bak"));
}

void WriteFirstLibrary(Session& session) {
  const Project& project = session.project;
  std::string text;
  for (int code = 1; code <= project.HeadCodeCount; ++code) {
    text += Left(project.HeadCodeLines[code], kLibraryLineWidth) + std::string(kLineBreak);
  }
  WriteFileSafely(session.platform.files, AddBackSlash(session.folders.LibraryFolder) + "user.hcl",
                  text);
}

void MakeLibrary(Session& session) {
  Procedure procedure(session, "Startup", "ReadInZEBLast");
  procedure.Step(80, [&] {
    FileSystem& files = session.platform.files;
    const std::string& folder = session.folders.LibraryFolder;
    if (!files.FolderExists(folder)) files.MakeFolder(folder);
    const std::string library = FindFileNoCase(session.platform, folder, "user.hcl");
    if (!files.FileExists(library)) WriteFirstLibrary(session);
  });
}

class StateText {
 public:
  void Line(std::string_view line) { text_.append(line).append(kLineBreak); }
  [[nodiscard]] const std::string& Text() const { return text_; }

 private:
  std::string text_;
};

std::string SupplyLine(const SupplyValues& values, int first, int decimals) {
  constexpr int kWidth = 7;
  std::string line;
  for (int value = first; value < kPairValues; value += 2) {
    if (value != first) line += ",";
    line += FixedNumber(values[static_cast<std::size_t>(value)], kWidth, decimals);
  }
  return line;
}

void AddSupply(StateText& state, const Project& project, int row) {
  const SupplyValues& values = project.SupplyTable[row];
  state.Line("PUMP=" + project.SupplyNames[row]);
  state.Line(SupplyLine(values, 0, 0));
  state.Line(SupplyLine(values, 1, 3));
  state.Line(FixedNumber(values[kTankHeightValue], 7, 3));
  state.Line(project.SupplyPaths[row]);
}

std::string SessionStateText(const Session& session) {
  const Project& project = session.project;
  const auto& texts = session.SessionTexts;
  StateText state;
  state.Line(texts[0] + "," + texts[1] + "," + texts[2] + "," + texts[3]);
  state.Line(project.LastProject);
  state.Line(DateText(session.platform.clock.Now()));
  state.Line(PlainText(project.LastSessionNumber));
  for (const std::string& text : project.GridLayoutTexts) state.Line(Trim(text));
  state.Line("CALC=");
  ForEachCalculationReal(project, [&](float value) { state.Line(PlainText(value)); });
  state.Line(PlainText(project.SizingMethod));
  for (int row = 1; row <= project.SupplyCount; ++row) AddSupply(state, project, row);
  return state.Text();
}

}  // namespace

SessionFileState ReadSessionFile(Session& session) {
  session.project.SupplyCount = 0;
  session.project.HeadCodeCount = 0;
  FileSystem& files = session.platform.files;
  if (!files.FileExists(session.folders.SessionFile)) {
    ReportMissingFile(session);
    return SessionFileState::kMissing;
  }
  Procedure procedure(session, "Startup", "ReadInZEBLast");
  bool whole = false;
  procedure.Step(10,
                 [&] { whole = ReadState(session, files.ReadFile(session.folders.SessionFile)); });
  return whole ? SessionFileState::kWhole : SessionFileState::kDamaged;
}

void ReadInZEBLast(Session& session) {
  const SessionFileState state = ReadSessionFile(session);
  if (state == SessionFileState::kMissing) return;
  if (state == SessionFileState::kDamaged) {
    Procedure procedure(session, "Startup", "ReadInZEBLast");
    procedure.Step(60, [&] { KeepDamagedFile(session); });
  }
  MakeLibrary(session);
}

void WriteSessionState(Session& session) {
  session.SessionTexts[2] = ShortTimeText(session.platform.clock.Now());
  WriteFileSafely(session.platform.files, session.folders.SessionFile, SessionStateText(session));
}

void SetDefaultCalculationFigures(Project& project) {
  project.minVel = 0.0F;
  project.maxVel = 6.0F;
  project.maxPD = 1.0F;
  project.SizingPdPerM = 50.0F;
  project.SizingTotalDrop = 5.0F;
  project.SizingMinNominal = 25.0F;
  project.SizingMethod = 1;
}

void mnuResetZEBlast(Session& session) {
  Project& project = session.project;
  project.LastProject.clear();
  project.LastSessionNumber = 0;
  std::copy(kDefaultGridLayout.begin(), kDefaultGridLayout.end(), project.GridLayoutTexts.begin());
  SetDefaultCalculationFigures(project);
  Procedure procedure(session, "ZEBF03", "mnuResetZEBlast_Click");
  if (procedure.Step(30, [&] { WriteSessionState(session); }))
    session.platform.shell.SetPanel(Panel::kHint, "Session file reset");
}

}  // namespace zeb
