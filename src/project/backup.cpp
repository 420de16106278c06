#include "project/backup.h"

#include "services/file_writing.h"
#include "services/paths.h"
#include "services/procedure.h"
#include "services/project_paths.h"

namespace zeb {
namespace {

bool UserReplaces(Dialogs& dialogs) {
  return UserAgrees(dialogs, "Backup existing file",
                    "The backup file already exist, shall I replace it? ");
}

// A backup that is opened as a project would otherwise be trashed or copied over itself.
bool SameFile(FileSystem& files, const std::string& a, const std::string& b) {
  return a == b || (files.FileExists(a) && files.ResolveLinks(a) == files.ResolveLinks(b));
}

void MakeTmpFolder(Session& session) {
  FileSystem& files = session.platform.files;
  if (!files.FolderExists(TmpFolder(session))) files.MakeFolder(TmpFolder(session));
}

void CopyToTmp(Session& session, Procedure& procedure, const std::string& path) {
  FileSystem& files = session.platform.files;
  const std::string copy = AddBackSlash(TmpFolder(session)) + ReturnFileName(path);
  if (SameFile(files, copy, path)) return;
  procedure.Step(50, [&] {
    if (files.FileExists(copy)) session.platform.machine.MoveToTrash(copy);
  });
  procedure.Step(60, [&] { CopyFileSafely(files, path, copy); });
}

void CopyTwice(Session& session, const std::string& path, const std::string& extension, bool ask) {
  if (!session.Backups) return;
  FileSystem& files = session.platform.files;
  Procedure procedure(session, "Open_Save", "MakeBackup");
  procedure.Step(10, [&] { MakeTmpFolder(session); });
  if (!files.FileExists(path)) return;

  const std::string beside = ChangeFileExt(path, extension);
  if (ask && files.FileExists(beside) && !UserReplaces(session.platform.dialogs)) return;
  CopyToTmp(session, procedure, path);
  if (!SameFile(files, beside, path)) {
    procedure.Step(70, [&] { CopyFileSafely(files, path, beside); });
  }
}

}  // namespace

std::string TmpFolder(const Session& session) {
  return AddBackSlash(session.folders.Program) + "tmp";
}

bool MakeBackup(Session& session, const std::string& stated, const std::string& extension,
                bool ask) {
  const bool exact = session.platform.files.FileExists(stated);
  CopyTwice(session, exact ? stated : RealPath(session, stated), extension, ask);
  return true;
}

void BackUpFile(Session& session, const std::string& path) {
  CopyTwice(session, path, kBackupExtension, false);
}

}  // namespace zeb
