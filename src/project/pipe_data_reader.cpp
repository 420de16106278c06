#include "project/pipe_data_reader.h"

#include <algorithm>
#include <string>
#include <utility>

#include "project/fault_report.h"
#include "project/nfpa_type_rules.h"
#include "services/field_reader.h"
#include "services/find_file.h"
#include "services/number_text.h"
#include "services/paths.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr double kMetresPerFoot = 0.3048;
constexpr float kLongestFitting = 200.0F;  // m or ft, as the table goes

const std::string kDefaultNote = "Refer to listing of file or the user manual";
const std::string kLineEnd(kLineBreak);

// The user chose to stop at a fault.
struct Stopped {};

// One reading of one file.
class PipeDataReading {
 public:
  PipeDataReading(Session& session, CheckMode mode, std::string bytes)
      : session_(session), project_(session.project), mode_(mode), fields_(std::move(bytes)) {}

  void Run() {
    ReadCounts();
    for (int type = 1; type <= types_; ++type) ReadType(type);
    for (int line = 1; line <= kSizesLines; ++line) ReadNominalSizes(line);
    project_.SuppressBoreCheck =
        ContainsNoCase(ItemText(project_, Item::kComments), kNoBoreCheckOption);
    for (int type = 1; type <= types_; ++type) ReadBores(type);
    for (int valve = 1; valve <= valves_; ++valve) ReadValve(valve);
    for (int valve = 1; valve <= valves_; ++valve) ReadLpcLengths(valve);
    for (int valve = 1; valve <= valves_; ++valve) ReadNfpaLengths(valve);
    if (UsesNfpaTables()) ApplyNfpaTypeRules(project_, types_);
  }

  void StoreCounts() {
    project_.PipeTypeCount = types_;
    project_.PipeSizeCount = sizes_;
    project_.ValveCount = valves_;
  }

 private:
  static constexpr int kSizesLines = 3;
  static constexpr std::string_view kNoBoreCheckOption = "-EP";

  void ReadCounts();
  void ReadType(int type);
  void CheckFriction(int type);
  void CheckRoughness(int type);
  void CheckSizesLine(int type);
  void ReadNominalSizes(int line);
  void ReadBores(int type);
  void CheckBore(int type, int size);
  void ReadValve(int valve);
  void ReadLpcLengths(int valve);
  void ReadNfpaLengths(int valve);

  [[nodiscard]] bool UsesNfpaTables() const {
    return project_.RuleType == kRulesNfpa || project_.RuleType == kRulesFm;
  }
  [[nodiscard]] std::string TypeTitle(int type) const {
    return "Pipe type" + SignedText(type) + " of" + SignedText(types_) + " = " +
           project_.PipeTypeDescriptions[type];
  }
  [[nodiscard]] std::string FittingTitle(int valve) const {
    return "Valve or Fitting type" + SignedText(valve) + " of" + SignedText(valves_) + " = " +
           project_.ValveDescriptions[valve];
  }

  void Report(int number, const std::string& title, const std::string& error,
              const std::string& advice, const std::string& note = kDefaultNote);

  Session& session_;
  Project& project_;
  CheckMode mode_;
  FieldReader fields_;
  int types_ = 0;
  int sizes_ = 0;
  int valves_ = 0;
};

void PipeDataReading::Report(int number, const std::string& title, const std::string& error,
                             const std::string& advice, const std::string& note) {
  ++project_.PipeDataErrorCount;
  const std::string number_text = SignedText(project_.PipeDataErrorCount) +
                                  " in Pipe / Fittings Data File " + project_.PipeDataFile;
  const std::string problem = "[Error " + PlainText(number) + "] " + error;
  const FaultAnswer answer = ReportFault(session_, number_text,
                                         {.number = number,
                                          .location = title,
                                          .problem = problem,
                                          .reason = advice,
                                          .correction = note,
                                          .short_line = {}},
                                         mode_ != CheckMode::kSilent);
  if (answer == FaultAnswer::kStop) throw Stopped();
}

int AtLeastOne(int count) { return std::max(count, 1); }

void PipeDataReading::ReadCounts() {
  static_cast<void>(fields_.Text());  // date
  static_cast<void>(fields_.Text());  // time
  types_ = AtLeastOne(fields_.Integer());
  sizes_ = AtLeastOne(fields_.Integer());
  valves_ = AtLeastOne(fields_.Integer());
  if (types_ <= kLastPipeType && sizes_ <= kLastPipeSize && valves_ <= kLastValve) return;

  const std::string counts = "1 =" + SignedText(types_) + " Pipe Types  (Maximum = 30)" + kLineEnd +
                             "2 =" + SignedText(sizes_) + " Pipe Sizes  (Maximum = 20)" + kLineEnd +
                             "3 =" + SignedText(valves_) + " Valve Types (Maximum = 20)" + kLineEnd;
  Report(20, "First line of file is incorrect", "It should have 3 numbers separated by commas",
         counts);
  types_ = std::min(types_, kLastPipeType);
  sizes_ = std::min(sizes_, kLastPipeSize);
  valves_ = std::min(valves_, kLastValve);
}

void PipeDataReading::ReadType(int type) {
  const int sequence = fields_.Integer();
  project_.TypeC[type] = fields_.Single();
  project_.TypeFittingFactor[type] = fields_.Single();
  project_.TypeRoughness[type] = fields_.Single();
  project_.TypeSizesLine[type] = fields_.Single();
  project_.PipeTypeRefs[type] = fields_.Text();
  project_.PipeTypeDescriptions[type] = fields_.LastText();

  if (sequence != type) {
    Report(21, TypeTitle(type),
           "Sequence number is" + SignedText(sequence) + " and not the correct number of" +
               SignedText(type),
           "Perhaps mistyped or one or more commas missed out in a previous line or this line is "
           "just in the wrong place.");
  }
  CheckFriction(type);
  CheckRoughness(type);
  CheckSizesLine(type);
  const std::string& ref = project_.PipeTypeRefs[type];
  if (ref.size() != 2 && ref.size() != 3) {
    Report(25, TypeTitle(type), "The abbreviated reference is " + ref,
           " It can only be 2 or 3 characters long to fit the column on the printout but the above "
           "ref can be retained as required.");
  }
}

void PipeDataReading::CheckFriction(int type) {
  const float c = project_.TypeC[type];
  if (c < 90.0F || c > 150.0F) {
    Report(22, TypeTitle(type), "Hazen Williams 'C' factor is" + SignedText(c),
           "This number is usually in the range of 90 to 150 but the entered value will be used in "
           "the calculations if this pipe type is given in your current project.");
  }
  const float factor = project_.TypeFittingFactor[type];
  if (factor < 0.4F || factor > 1.6F) {
    Report(23, TypeTitle(type),
           "Correction factor for Hazen Williams 'C' factor of" + SignedText(c) + " is" +
               SignedText(factor),
           "This number is usually in the range of 0.7 to 1.5 but the entered value will be used "
           "in the calculations if this pipe type is given in your current project.",
           "The LPC Rules specify the following correction factors :-" + kLineEnd + kLineEnd +
               " HW 'C' = 100 Factor = 0.714  HW 'C' = 110 Factor = 0.850" + kLineEnd +
               " HW 'C' = 120 Factor = 1.000  HW 'C' = 130 Factor = 1.160" + kLineEnd +
               " HW 'C' = 140 Factor = 1.330  HW 'C' = 150 Factor = 1.490" + kLineEnd);
  }
}

void PipeDataReading::CheckRoughness(int type) {
  const float roughness = project_.TypeRoughness[type];
  if (roughness >= 0.0001F && roughness <= 0.99F) return;
  project_.TypeRoughness[type] = 0.046F;
  Report(24, TypeTitle(type), "Roughness =" + FixedNumber(roughness, 9, 5) + " mm",
         "It must be in the range of 0.0001 to 0.99 mm",
         "It has been changed to 0.046 to permit you to proceed.");
}

void PipeDataReading::CheckSizesLine(int type) {
  const float line = project_.TypeSizesLine[type];
  if (line >= 1.0F && line <= kSizesLines) return;
  project_.TypeSizesLine[type] = 1.0F;
  Report(24, TypeTitle(type), "Nominal sizes line =" + SignedText(line),
         "It must be 1, 2 or 3 to suit the corresponding list of nominal pipe sizes to match the "
         "actual internal pipe diameters for this pipe type. ",
         "It has been changed to 1 to permit you to proceed.");
}

void PipeDataReading::ReadNominalSizes(int line) {
  auto& sizes = project_.NominalSizes[line - 1];
  for (int size = 1; size <= sizes_; ++size) {
    sizes[size] = fields_.Integer();
    const bool falls = size > 1 && sizes[size] > 0 && sizes[size] < sizes[size - 1];
    if (!falls) continue;
    Report(26, "Nominal pipe sizes line number" + SignedText(line) + " of 3",
           "The size of" + SignedText(sizes[size]) + " is smaller than the previous size of" +
               SignedText(sizes[size - 1]) + " mm",
           "The list must be in ascending order to match the table of equivalent lengths further "
           "in this data file.");
  }
}

void PipeDataReading::ReadBores(int type) {
  for (int size = 1; size <= sizes_; ++size) {
    project_.PipeBores[size][type] = fields_.Single();
    if (!project_.SuppressBoreCheck) CheckBore(type, size);
  }
}

void PipeDataReading::CheckBore(int type, int size) {
  const float bore = project_.PipeBores[size][type];
  const int nominal = project_.NominalSize(type, size);
  const auto least = static_cast<float>(0.7 * nominal);
  const auto most = static_cast<float>(1.3 * nominal);
  if (bore <= 0.0F || (bore >= least && bore <= most)) return;
  Report(27, TypeTitle(type), "Actual internal diameter (or bore) =" + SignedText(bore) + " mm",
         "This does not appear to match the corresponding nominal diameter of" +
             SignedText(nominal) + " mm",
         "Perhaps mistyped or in the wrong position in the line but this value will be used in the "
         "calculations for your current project if not changed.");
}

void PipeDataReading::ReadValve(int valve) {
  project_.ValveRefs[valve] = fields_.Text();
  project_.ValveDescriptions[valve] = fields_.LastText();
  const std::string& ref = project_.ValveRefs[valve];
  if (ref.size() == 2) return;
  Report(28, "Valve type" + SignedText(valve) + " of" + SignedText(valves_) + " = " + ref,
         "This should be 2 characters long to fit the column on the printout",
         "But the above reference can be retained if necessary.");
}

bool IsFittingLength(float length) { return length >= 0.0F && length <= kLongestFitting; }

void PipeDataReading::ReadLpcLengths(int valve) {
  for (int size = 1; size <= sizes_; ++size) {
    const float metres = fields_.Single();
    project_.EqLengthsLpc[valve][size] = metres;
    project_.EqLengths[valve][size] = metres;
    if (IsFittingLength(metres)) continue;
    Report(29, FittingTitle(valve),
           "Equivalent length =" + SignedText(metres) + " m for" +
               SignedText(project_.NominalSizes[0][size]) + " mm in the LPC Rules",
           "It should be in the range of 0 to 200 m but this value will be used in the "
           "calculations if not changed.");
  }
}

void PipeDataReading::ReadNfpaLengths(int valve) {
  for (int size = 1; size <= sizes_; ++size) {
    const float feet = fields_.Single();
    project_.EqLengthsNfpa[valve][size] = feet;
    if (UsesNfpaTables()) {
      project_.EqLengths[valve][size] = static_cast<float>(feet * kMetresPerFoot);
    }
    if (IsFittingLength(feet)) continue;
    Report(29, FittingTitle(valve) + kLineEnd + kLineEnd,
           "Equivalent length =" + SignedText(feet) + " ft for" +
               SignedText(project_.NominalSizes[0][size]) + " mm in the NFPA / FM Rules",
           "It should be in the range of 0 to 200 ft but this value will be used in the "
           "calculations if not changed.");
  }
}

void ClearForReading(Project& project) {
  project.StopFlag = 0;
  project.Schedule40Type = 0;
  project.TypeFileC.Clear();
  project.TypeFileFactor.Clear();
  project.NominalSizes.Clear();
  project.PipeBores.Clear();
  project.EqLengths.Clear();
  project.EqLengthsLpc.Clear();
  project.EqLengthsNfpa.Clear();
}

// The name as the project spells it, where that is the same file.
std::string NameToLookFor(const Project& project) {
  const std::string item = Trim(ItemText(project, Item::kPipeData));
  return UpperCase(item) == project.PipeDataFile ? item : project.PipeDataFile;
}

void ReadFrom(Session& session, CheckMode mode, const std::string& folder) {
  ClearForReading(session.project);
  const std::string path = FindFileNoCase(session.platform, folder, NameToLookFor(session.project));
  session.platform.shell.SetPanel(Panel::kHint, "Reading in and checking " + path + " ...");
  PipeDataReading reading(session, mode, session.platform.files.ReadFile(path));
  bool stopped = false;
  try {
    reading.Run();
  } catch (const Stopped&) {
    stopped = true;
  }
  session.project.PipeDataPath = path;
  if (!stopped) reading.StoreCounts();
}

bool TryReadFrom(Session& session, CheckMode mode, const std::string& folder) {
  try {
    ReadFrom(session, mode, folder);
    return true;
  } catch (const RuntimeFailure&) {
    return false;
  }
}

// Where to read from after a failure.
class Fallback {
 public:
  explicit Fallback(Session& session) : session_(session), folder_(session.folders.PdtFolder) {}

  [[nodiscard]] const std::string& Folder() const { return folder_; }

  // False when there is nothing left to try.
  bool Next() {
    ++attempts_;
    if (attempts_ <= 3 && HasStandardFolder()) {
      folder_ = session_.project.StandardFolder;
      return true;
    }
    if (session_.project.PipeDataFile != kStandardPipeData && attempts_ <= 6) {
      Tell("The program will have to continue with STD_PIPE.PDT", "Cannot read in ");
      session_.project.PipeDataFile = kStandardPipeData;
      folder_ = session_.folders.PdtFolder;
      return true;
    }
    Tell("This file is missing or corrupt", "Error in reading ");
    return false;
  }

 private:
  [[nodiscard]] bool HasStandardFolder() const {
    return !SamePathNoCase(session_.project.StandardFolder, session_.project.ProjectFolder);
  }

  void Tell(const std::string& title, const std::string& text) {
    session_.platform.dialogs.Show(
        {.title = title,
         .text = text + AddBackSlash(folder_) + session_.project.PipeDataFile,
         .icon = MessageIcon::kWarning});
  }

  Session& session_;
  std::string folder_;
  int attempts_ = 0;
};

}  // namespace

void ReadPipeData(Session& session, CheckMode mode) {
  Fallback fallback(session);
  while (!TryReadFrom(session, mode, fallback.Folder())) {
    if (fallback.Next()) continue;
    session.project.StopFlag = kStopCheck;
    return;
  }
}

}  // namespace zeb
