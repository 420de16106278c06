#include "services/support_bundle.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

#include "services/file_writing.h"
#include "services/paths.h"
#include "services/procedure.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr std::array<std::string_view, 5> kPackedKinds{".LOG", ".TXT", ".PDT", ".HCL", ".CLF"};

using Entries = std::vector<ArchiveEntry>;

bool IsPackedKind(const std::string& name) {
  const std::string upper = UpperCase(name);
  return std::any_of(kPackedKinds.begin(), kPackedKinds.end(),
                     [&](std::string_view kind) { return upper.ends_with(kind); });
}

void AddFile(Session& session, Entries& entries, const std::string& folder, const std::string& name,
             const std::string& prefix) {
  entries.push_back({prefix + name, session.platform.files.ReadFile(AddBackSlash(folder) + name)});
}

void AddProgramFiles(Session& session, Entries& entries) {
  const std::string& folder = session.folders.Program;
  for (const std::string& name : session.platform.files.FileNames(folder)) {
    if (IsPackedKind(name)) AddFile(session, entries, folder, name, "");
  }
}

void AddProjectBundle(Session& session, Entries& entries) {
  const std::string& folder = session.folders.Program;
  if (session.platform.files.FileExists(AddBackSlash(folder) + kProjectBundle)) {
    AddFile(session, entries, folder, kProjectBundle, "");
  }
}

void AddFolder(Session& session, Entries& entries, const std::string& folder,
               const std::string& prefix) {
  FileSystem& files = session.platform.files;
  for (const std::string& name : files.FileNames(folder)) {
    AddFile(session, entries, folder, name, prefix);
  }
  for (const std::string& name : files.FolderNames(folder)) {
    AddFolder(session, entries, AddBackSlash(folder) + name, prefix + name + "/");
  }
}

// The folder in which the user finds the bundle: the desktop where there is one.
std::string ShowOnDesktop(Session& session, const std::string& bundle) {
  Platform& platform = session.platform;
  std::string desktop = platform.machine.DesktopFolder();
  if (!platform.files.FolderExists(desktop)) return session.folders.Program;
  CopyFileSafely(platform.files, bundle, AddBackSlash(desktop) + kErrorBundle);
  return desktop;
}

void Tell(Session& session, const std::string& hint) {
  session.platform.shell.SetPanel(Panel::kHint, hint);
}

}  // namespace

void ZEB_error_dat(Session& session) {
  Platform& platform = session.platform;
  const std::string bundle = AddBackSlash(session.folders.Program) + kErrorBundle;
  Entries entries;
  Procedure procedure(session, "Module3", "ZEB_error_dat");
  procedure.Step(10, [&] { AddProgramFiles(session, entries); });
  procedure.Step(20, [&] { AddProjectBundle(session, entries); });
  procedure.Step(30, [&] { AddFolder(session, entries, session.folders.UserDataFolder, "ZEB/"); });
  const bool packed = procedure.Step(40, [&] { platform.archive.Write(bundle, entries, ""); });
  // An older bundle must not pass for this one.
  if (!packed) return;
  procedure.Step(50, [&] {
    const std::string folder = ShowOnDesktop(session, bundle);
    Tell(session, std::string(kErrorBundle) + " packed in " + folder);
  });
}

void delErrorLogFiles(Session& session) {
  const std::string folder = AddBackSlash(session.folders.Program);
  Procedure procedure(session, "Module3", "delErrorLogFiles");
  int step = 0;
  bool deleted = true;
  for (const std::string& path :
       {folder + kProjectBundle, folder + kErrorBundle, session.log.Path()}) {
    deleted &= procedure.Step(step += 10, [&] {
      if (session.platform.files.FileExists(path)) session.platform.files.Remove(path);
    });
  }
  if (deleted) Tell(session, "Error logs deleted");
}

}  // namespace zeb
