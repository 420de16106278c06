#include "project/initial_head_codes.h"

#include <string>

#include "services/find_file.h"
#include "services/procedure.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr const char* kOnlyHeadCode = "01 15.0  80.00   0.50 STD1";

void ReadLibrary(Session& session, const std::string& name, bool keep_blank_lines) {
  Project& project = session.project;
  const std::string path = FindFileNoCase(session.platform, session.folders.LibraryFolder, name);
  int count = 0;
  for (const std::string& line : SplitLines(session.platform.files.ReadFile(path))) {
    if (keep_blank_lines || !Trim(line).empty()) project.HeadCodeLines[++count] = line;
  }
  project.HeadCodeCount = count;
}

void AddOnlyHeadCode(Session& session) {
  session.platform.dialogs.Show(
      {.title = "Error: Head Codes",
       .text = "The user.hcl file is empty.  ZEB has added 1 head to your project file."});
  session.project.HeadCodeLines[1] = kOnlyHeadCode;
  session.project.HeadCodeCount = 1;
}

}  // namespace

void ReadLegacyHeadCodes(Session& session) { ReadLibrary(session, "user.hcl", true); }

void FillNewHeadCodes(Session& session) {
  Project& project = session.project;
  project.HeadCodeLines.Clear();
  project.HeadCodeCount = 0;
  Procedure procedure(session, "ZEBF03", "Fnew_Click");
  procedure.Step(200, [&] {
    ReadLibrary(session, session.settings.GetIniValue(setting::kDefaultHeadCodes), false);
  });
  if (project.HeadCodeCount == 0) AddOnlyHeadCode(session);
}

}  // namespace zeb
