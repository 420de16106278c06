#include "lifecycle/folders_setup.h"

#include <string>

#include "lifecycle/program_folder.h"
#include "services/file_writing.h"
#include "services/paths.h"
#include "services/procedure.h"

namespace zeb {
namespace {

std::string InFolder(const std::string& folder, const char* name) {
  return AddBackSlash(folder) + name;
}

std::string WithoutEndSeparator(const std::string& folder) {
  return ReturnFolder(AddBackSlash(folder));
}

void MakeMissingFolder(FileSystem& files, const std::string& folder) {
  if (!files.FolderExists(folder)) files.MakeFolder(folder);
}

std::string PipeDataFolder(Session& session) {
  const std::string own = AddBackSlash(InFolder(session.folders.Program, "pipedata"));
  return WithoutEndSeparator(session.settings.GetSetting(
      std::string(setting::kPdtFolder.section), std::string(setting::kPdtFolder.key), own));
}

// The setting names the file or the folder where it lies.
std::string SessionFile(Session& session) {
  std::string place = session.settings.GetIniValue(setting::kSessionFile);
  if (place.empty()) place = session.settings.GetIniValue(setting::kOldSessionFile);
  if (place.empty()) place = session.folders.Program;
  return session.platform.files.FolderExists(place) ? InFolder(place, "zeblast.txt") : place;
}

std::string LastFolder(Session& session) {
  const std::string own = InFolder(session.folders.MyFolder, "Projects");
  MakeMissingFolder(session.platform.files, own);
  const std::string last = session.settings.GetIniValue(setting::kProjFolder);
  return last.empty() ? own : WithoutEndSeparator(last);
}

void UnpackExamples(Session& session) {
  const Folders& folders = session.folders;
  FileSystem& files = session.platform.files;
  const std::string archive = InFolder(folders.Program, "Examples.zip");
  if (files.FileExists(archive)) {
    for (const ArchiveEntry& entry : session.platform.archive.Read(archive, "")) {
      const std::string name = ReturnFileName(entry.name);
      if (!name.empty())
        WriteFileSafely(files, InFolder(folders.Examples, name.c_str()), entry.bytes);
    }
  }
  CopyMissingFiles(files, InFolder(folders.Program, "Examples"), folders.Examples);
}

void MakeExamples(Session& session) {
  if (session.platform.files.FolderExists(session.folders.Examples)) return;
  session.platform.files.MakeFolder(session.folders.Examples);
  UnpackExamples(session);
}

}  // namespace

void ResolveFolders(Session& session) {
  const Platform& platform = session.platform;
  Folders& folders = session.folders;
  Procedure procedure(session, "Setup", "TolvanSetup");
  folders.Program = FindProgramFolder(platform);
  session.log.Locate(folders.Program);
  procedure.Step(10, [&] { SeedProgramFolder(platform, folders.Program); });
  folders.UserDataFolder = InFolder(platform.machine.ConfigFolder(), "ZEB");
  session.settings.Locate(folders.UserDataFolder, folders.Program);

  folders.PdtFolder = PipeDataFolder(session);
  folders.SessionFile = SessionFile(session);
  folders.LibraryFolder = InFolder(folders.Program, "Library");
  folders.MyFolder = InFolder(platform.machine.DocumentsFolder(), "My ZEB");
  procedure.Step(20, [&] { MakeMissingFolder(platform.files, folders.MyFolder); });
  procedure.Step(30, [&] { folders.LastFolder = LastFolder(session); });
  folders.Examples = InFolder(folders.MyFolder, "Examples");
  procedure.Step(40, [&] { MakeExamples(session); });
  procedure.Step(50, [&] { MakeMissingFolder(platform.files, folders.UserDataFolder); });
}

void ResolveInstalledFolders(Session& session) {
  Folders& folders = session.folders;
  folders.Program = FindInstalledData(session.platform);
  folders.PdtFolder = InFolder(folders.Program, "pipedata");
  folders.LibraryFolder = InFolder(folders.Program, "Library");
}

}  // namespace zeb
