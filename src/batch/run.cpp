#include "batch/run.h"

#include <algorithm>
#include <string>

#include "batch/batch_session.h"
#include "batch/console_text.h"
#include "batch/json_dump.h"
#include "batch/pipe_data_print.h"
#include "batch/time_limit.h"
#include "calc/calculate_command.h"
#include "check/check_project.h"
#include "model/model_state.h"
#include "project/pipe_data_reader.h"
#include "project/project_location.h"
#include "project/project_reader.h"
#include "project/project_writer.h"
#include "services/code_page.h"
#include "services/file_writing.h"
#include "services/number_text.h"
#include "services/paths.h"
#include "services/text.h"

namespace zeb {
namespace {

// False, and told, when the file is no project.
bool ReadProjectFile(Session& session, const std::string& file) {
  if (!session.platform.files.FileExists(file)) {
    PrintError(file + ": File not found");
    return false;
  }
  SetProjectFile(session, file);
  ReadProject(session);
  if (session.project.LineCount > kFewestLines) return true;
  PrintError(file + ": This is no project file that can be read");
  return false;
}

int StatusOfCheck(const Session& session) {
  const bool clean =
      session.project.ModelState >= model_state::kChecked && session.project.Faults.empty();
  return clean ? kExitDone : kExitFailed;
}

// Picks the heads of the command line. False, and told, when a node has none.
bool SelectHeads(Session& session, const BatchOptions& options) {
  if (options.select_nodes.empty()) return true;
  const std::vector<int> missing = PickHeadsByNodes(session, options.select_nodes);
  for (const int node : missing) {
    PrintError("--select: there is no head at node" + SignedText(node));
  }
  return missing.empty();
}

int CalculateChecked(Session& session, const BatchOptions& options) {
  if (options.supply) {
    ItemText(session.project, Item::kSupply) = FromUtf8(*options.supply).value_or("?");
  }
  if (!SelectHeads(session, options)) return kExitUsage;
  const bool calculated = Ccall(session) && session.project.ModelState == model_state::kCalculated;
  const bool balanced = session.project.ResultLine != "Calculation Incomplete";
  return calculated && balanced ? kExitDone : kExitFailed;
}

int Check(BatchSession& batch, const std::string& file) {
  Session& session = batch.Get();
  if (!ReadProjectFile(session, file)) return kExitUsage;
  CheckProject(session, CheckMode::kComposeLines);
  PrintOut(session.project.CheckSummary);
  return StatusOfCheck(session);
}

int Calculate(BatchSession& batch, const BatchOptions& options, const std::string& file) {
  Session& session = batch.Get();
  if (!ReadProjectFile(session, file)) return kExitUsage;
  CheckProject(session, CheckMode::kComposeLines);
  if (session.project.ModelState < model_state::kChecked) return kExitFailed;
  const int status = std::max(StatusOfCheck(session), CalculateChecked(session, options));
  if (session.project.ModelState != model_state::kCalculated) return status;
  PrintOut(session.project.CalcSummary);
  PrintOut(session.project.ResultLine);
  if (!options.summary_file.empty()) {
    WriteFileSafely(session.platform.files, options.summary_file, session.project.CalcSummary);
  }
  return status;
}

int Canonical(BatchSession& batch, const std::string& file) {
  Session& session = batch.Get();
  if (!ReadProjectFile(session, file)) return kExitUsage;
  CheckProject(session, CheckMode::kComposeLines);
  for (int line = 1; line <= session.project.LineCount; ++line) {
    PrintOut(session.project.PipeLines[line]);
  }
  return StatusOfCheck(session);
}

int Convert(BatchSession& batch, const BatchOptions& options, const std::string& file) {
  Session& session = batch.Get();
  if (!ReadProjectFile(session, file)) return kExitUsage;
  session.Backups = true;
  if (!options.operating_heads) {
    return SaveProject(session, static_cast<SaveMode>(options.mode), options.target) ? kExitDone
                                                                                     : kExitFailed;
  }
  CheckProject(session, CheckMode::kKeepLines);
  if (session.project.ModelState < model_state::kChecked) return kExitFailed;
  const int status = StatusOfCheck(session);
  if (!SelectHeads(session, options)) return kExitUsage;
  return SaveCheckedCopy(session, options.target) ? status : kExitFailed;
}

int PipeData(BatchSession& batch, const std::string& file) {
  Session& session = batch.Get();
  Project& project = session.project;
  if (!session.platform.files.FileExists(file)) {
    PrintError(file + ": File not found");
    return kExitUsage;
  }
  session.folders.PdtFolder = ReturnFolder(file).empty() ? "." : ReturnFolder(file);
  project.PipeDataFile = UpperCase(ReturnFileName(file));
  ReadPipeData(session, CheckMode::kKeepLines);
  const bool this_file =
      SamePathNoCase(ReturnFileName(project.PipeDataPath), project.PipeDataFile) &&
      project.PipeDataFile == UpperCase(ReturnFileName(file));
  if (!this_file || project.PipeSizeCount == 0) return kExitUsage;
  PrintOut(PipeDataText(project));
  return project.PipeDataErrorCount == 0 ? kExitDone : kExitFailed;
}

int Dump(BatchSession& batch, const BatchOptions& options, const std::string& file) {
  Session& session = batch.Get();
  if (!ReadProjectFile(session, file)) return kExitUsage;
  CheckProject(session, CheckMode::kComposeLines);
  const CheckResult check = KeepCheckResult(session.project);
  int status = StatusOfCheck(session);
  if (options.calculate && session.project.ModelState >= model_state::kChecked) {
    status = std::max(status, CalculateChecked(session, options));
  }
  PrintUtf8(DumpJson(session, check, batch.Messages()));
  return status;
}

int RunCommand(BatchSession& batch, const BatchOptions& options, const std::string& file) {
  using Command = BatchOptions::Command;
  switch (options.command) {
    case Command::kCheck:
      return Check(batch, file);
    case Command::kCalculate:
      return Calculate(batch, options, file);
    case Command::kCanonical:
      return Canonical(batch, file);
    case Command::kConvert:
      return Convert(batch, options, file);
    case Command::kPipeData:
      return PipeData(batch, file);
    case Command::kDump:
      return Dump(batch, options, file);
  }
  return kExitUsage;
}

// A failure that no command traps ends this file, not the run.
int RunFile(const BatchOptions& options, const std::string& file) {
  BatchSession batch(options);
  if (!batch.Ready()) return kExitUsage;
  try {
    return RunCommand(batch, options, file);
  } catch (const RuntimeFailure& failure) {
    PrintError(file + ": " + failure.Description());
    return kExitFailed;
  }
}

}  // namespace

int RunBatch(const BatchOptions& options) {
  SetTimeLimit(options.time_limit);
  int status = kExitDone;
  for (const std::string& file : options.files) status = std::max(status, RunFile(options, file));
  return status;
}

}  // namespace zeb
