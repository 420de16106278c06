#include "support/test_session.h"

namespace zeb::test {

TestSession::TestSession() {
  machine.files = &files;
  archive.files = &files;
  session.folders = {.Program = "/prog",
                     .PdtFolder = "/prog/pipedata",
                     .SessionFile = "/prog/zeblast.txt",
                     .LibraryFolder = "/prog/Library",
                     .MyFolder = "/docs/My ZEB",
                     .LastFolder = "/docs/My ZEB/Projects",
                     .Examples = "/docs/My ZEB/Examples",
                     .UserDataFolder = "/config/ZEB"};
  const Folders& folders = session.folders;
  for (const std::string& folder :
       {folders.PdtFolder, folders.LibraryFolder, folders.LastFolder, folders.Examples,
        folders.UserDataFolder, std::string("/desktop")}) {
    files.PutFolder(folder);
  }
  session.settings.Locate(folders.UserDataFolder, folders.Program);
  session.log.Locate(folders.Program);
  session.authorities.Parse(
      "EN 12845 Rules,10P2,1,1,0\r\n"
      "NFPA 13 Rules,10P2,1,0,1\r\n"
      "FM Rules,10P2,1,0,2\r\n");
}

}  // namespace zeb::test
