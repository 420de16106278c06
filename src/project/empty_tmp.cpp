#include "project/empty_tmp.h"

#include <algorithm>
#include <array>
#include <string>

#include "project/backup.h"
#include "services/number_text.h"
#include "services/paths.h"
#include "services/procedure.h"
#include "services/text.h"

namespace zeb {
namespace {

constexpr std::array<std::string_view, 3> kExtensions{".BAK", ".ZEB", ".ZE!"};

bool IsBackup(const std::string& name) {
  const std::string upper = UpperCase(name);
  return std::any_of(kExtensions.begin(), kExtensions.end(),
                     [&](std::string_view extension) { return upper.ends_with(extension); });
}

}  // namespace

void EmptyTmpFolder(Session& session) {
  if (!UserAgrees(session.platform.dialogs, "Delete TMP folder files",
                  "Do you wish to delete all file in the ZEB TMP folder?  ")) {
    return;
  }
  FileSystem& files = session.platform.files;
  const std::string folder = TmpFolder(session);
  int deleted = 0;
  Procedure procedure(session, "ZEBF03", "mnuDeleteTmp_Click");
  for (const std::string& name : files.FileNames(folder)) {
    if (IsBackup(name) && procedure.Step(20, [&] { files.Remove(AddBackSlash(folder) + name); }))
      ++deleted;
  }
  session.platform.shell.SetPanel(
      Panel::kHint,
      PlainText(deleted) + (deleted == 1 ? " file" : " files") + " deleted from the TMP folder");
}

}  // namespace zeb
