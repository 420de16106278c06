#pragma once

#include <string>

namespace zeb {

// The folders and files of the session, resolved once at start-up; folders without a separator at
// their end.
struct Folders {
  std::string Program;
  std::string PdtFolder;       // pipe data files
  std::string SessionFile;     // zeblast.txt
  std::string LibraryFolder;   // head code libraries
  std::string MyFolder;        // "My ZEB" in the user's documents
  std::string LastFolder;      // first folder of the file dialogs
  std::string Examples;        // sample projects
  std::string UserDataFolder;  // settings, stored references
};

}  // namespace zeb
