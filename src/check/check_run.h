#pragma once

#include "model/check_fault.h"
#include "platform/commands.h"
#include "services/session.h"

namespace zeb {

// Codes in the installation number of a project that switch parts of the check off or on.
struct CheckOptions {
  bool no_length_correction = false;  // "-LC"
  bool rework_previous = false;       // "+WR": the previous pipe takes part in a swing joint
  bool no_area_check = false;         // "-AC"
  bool no_fitting_checks = false;     // "-FC"
  bool no_head_size_check = false;    // "-SH"
};

// What one check keeps besides the tables.
struct CheckRun {
  CheckRun(Session& session_in, CheckMode mode_in)
      : session(session_in), project(session_in.project), mode(mode_in) {}

  // Runs a phase and then tests for failures of real arithmetic. Its name and a statement number
  // tell where a failure happened.
  void Phase(const char* name, void (*body)(CheckRun& run));

  Session& session;
  Project& project;
  const CheckMode mode;
  CheckOptions options;

  const char* phase = "";
  int statement = 0;

  int pipes = 0;            // slots used
  int heads = 0;            // slots used
  int closings = 0;         // closing pipes found, also those beyond the table of loops
  int node_check_pipe = 0;  // the pipe that the node checks looked at last
};

// The user stopped the check at a report: ends the pass.
struct CheckStopped {};

// Counts and stores a fault, adds its short line to WarningText and shows its box, unless boxes
// are suppressed or the check is silent.
void ReportCheckError(CheckRun& run, CheckFault fault);

// Throws CheckStopped when the user chose to stop at a report.
void TestStopFlag(const CheckRun& run);

// Shows the number of reported errors, and whether their boxes are shown, on the status bar.
void ShowErrorPanel(Session& session);

}  // namespace zeb
