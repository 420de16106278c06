#pragma once

#include <string>

#include "check/check_project.h"
#include "check/compose_line.h"
#include "lifecycle/startup.h"
#include "project/project_location.h"
#include "project/project_reader.h"
#include "support/real_file.h"
#include "support/test_session.h"

namespace zeb::test {

// A session over fakes whose commands are the real ones, started without a window and with the
// shipped pipe data, authorities and head codes: what benchmarks, fuzzers and tests of whole
// projects begin with. Nothing waits for a user.
struct ProjectSession : TestSession {
  ProjectSession() {
    const std::string data = ZEB_DATA_DIR;
    for (const char* name : {"STD_PIPE.PDT", "NFPA.PDT", "METRIC.PDT"}) {
      files.Put("/prog/pipedata/" + std::string(name), RealFile(data + "/pipedata/" + name));
    }
    files.Put("/prog/Library/user.hcl", RealFile(data + "/library/user.hcl"));
    commands.on_check = [this](CheckMode mode) { CheckProject(session, mode); };
    commands.on_compose = [this](int pipe) { ComposePipeLine(session, pipe); };
    Reset();
    session.authorities.Parse(RealFile(data + "/authorities/DesignAuth.csv"));
  }

  // As after the start: no project, no boxes.
  void Reset() {
    const Folders folders = session.folders;
    StartWithoutWindow(session);
    session.folders = folders;
    dialogs.messages.clear();
  }

  // Reads a project file and, if it is one, checks it. False when it is none.
  bool Open(const std::string& file_bytes) {
    files.Put("/jobs/JOB.ZEB", file_bytes);
    SetProjectFile(session, "/jobs/JOB.ZEB");
    ReadProject(session);
    if (session.project.LineCount <= kFewestLines) return false;
    CheckProject(session, CheckMode::kComposeLines);
    return true;
  }
};

}  // namespace zeb::test
