#include "check/initialisation.h"

#include <string>

#include "model/model_state.h"
#include "project/head_codes.h"
#include "project/pipe_data_reader.h"
#include "project/project_writer.h"
#include "services/number_text.h"
#include "services/project_paths.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr float kUsualStatic = 10.0F;  // m of head per bar
constexpr int kNoHeadCode = 999;

void ClearReports(Project& project) {
  project.WarningText.clear();
  project.Faults.clear();
  project.CheckErrorCount = 0;
  project.ErrorNumberText.clear();
  project.ErrorLocation.clear();
  project.ErrorProblem.clear();
  project.ErrorReason.clear();
  project.ErrorCorrection.clear();
}

void ClearForCheck(CheckRun& run) {
  Project& project = run.project;
  project.BackupFile.clear();
  ClearReports(project);
  ClearCheckValues(project);
  project.LoopListLength = 0;
  project.HeadAreaState = 0;
  project.ModelState = model_state::kRead;
  project.PipeX[0] = project.PipeY[0] = project.PipeZ[0] = 0.0F;
  project.PipeStartNode.Clear(1);
  project.PipeEndNode.Clear(1);
  project.WeldSize = ValInt16(ItemText(project, Item::kWeldSize));
}

CheckOptions OptionsIn(const std::string& codes) {
  return {.no_length_correction = Contains(codes, "-LC"),
          .rework_previous = Contains(codes, "+WR"),
          .no_area_check = Contains(codes, "-AC"),
          .no_fitting_checks = Contains(codes, "-FC"),
          .no_head_size_check = Contains(codes, "-SH")};
}

void TakeProjectRules(CheckRun& run) {
  Project& project = run.project;
  const std::string codes = UpperCase(ItemText(project, Item::kInstallation));
  run.options = OptionsIn(codes);
  project.SprinklerOrient = Contains(codes, "PEND") ? 2 : 1;

  const std::string& authority = ItemText(project, Item::kAuthority);
  project.RuleType = run.session.authorities.RuleType(authority);
  const float metres_per_bar = run.session.authorities.StaticValue(authority);
  const bool plausible = metres_per_bar >= 9.7F && metres_per_bar <= 10.3F;
  project.AuthorityStatic = plausible ? metres_per_bar : kUsualStatic;
}

void TakePipeData(CheckRun& run) {
  Project& project = run.project;
  project.PipeDataFile = Trim(UpperCase(ItemText(project, Item::kPipeData)));
  if (!Contains(project.PipeDataFile, ".")) project.PipeDataFile += ".TXT";
  if (project.PipeSizeCount == 0) ReadPipeData(run.session, run.mode);
  TestStopFlag(run);
}

// " Size =", the size of the project's file in whole kB, and "kB"; empty when there is no file.
std::string FileSizeText(Session& session) {
  if (session.project.ProjectPath == kUntitled) return "";
  FileSystem& files = session.platform.files;
  const std::string path = RealProjectPath(session);
  if (!files.FileExists(path)) return "";
  return " Size =" + SignedText(static_cast<int>(files.FileSize(path) / 1024)) + "kB";
}

void AnnounceCheck(Session& session) {
  Shell& shell = session.platform.shell;
  shell.SetPanel(Panel::kHint,
                 "Reading in and checking " + session.project.ProjectPath + FileSizeText(session));
  shell.Enable(Feature::kCalculateMenu, false);
  shell.Enable(Feature::kDisplayMenu, false);
  shell.Enable(Feature::kPrintMenu, false);
}

void ClearNodes(Project& project) {
  project.NodeStarts.Clear();
  project.NodeEnds.Clear();
  project.NodeFirstPipe.Clear();
}

}  // namespace

bool AcceptAuthority(Session& session) {
  const std::string& authority = ItemText(session.project, Item::kAuthority);
  const bool known = session.authorities.HaveDesignAuthInList(authority);
  if (!known) {
    session.platform.dialogs.Show({.title = "Error with design authority",
                                   .text = "Sorry the projects Design Authority is not supported "
                                           "in this version of ZEB.",
                                   .icon = MessageIcon::kStop});
  }
  for (const Feature feature : {Feature::kEditMenu, Feature::kToolsMenu, Feature::kToolBars}) {
    session.platform.shell.Enable(feature, known);
  }
  return known;
}

void InitialiseCheck(CheckRun& run) {
  Project& project = run.project;
  run.session.platform.shell.SetBusyPointer(true);
  ClearForCheck(run);
  ShowErrorPanel(run.session);
  ParseHeadCodes(project);
  TakeProjectRules(run);
  TakePipeData(run);
  AnnounceCheck(run.session);
  project.StopFlag = 0;
  ClearNodes(project);
  project.MinHeadCode = kNoHeadCode;
  project.MaxHeadCode = 0;
}

}  // namespace zeb
