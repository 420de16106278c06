#include "batch/batch_session.h"

#include "lifecycle/session_state.h"
#include "lifecycle/startup.h"
#include "services/paths.h"

namespace zeb {

BatchSession::BatchSession(const BatchOptions& options)
    : dialogs_(options.yes),
      shell_(options),
      session_(
          Platform{dialogs_, shell_, commands_, files_, clock_, machine_, archive_, clipboard_}) {
  commands_.Bind(session_);
  StartWithoutWindow(session_);
  LocateFolders(options);
  ready_ = ReadAuthorities(options);
  ready_ = ready_ && ReadSupplies(options);
}

void BatchSession::LocateFolders(const BatchOptions& options) {
  Folders& folders = session_.folders;
  if (!options.settings_folder.empty()) {
    session_.settings.Locate(options.settings_folder, folders.Program);
  }
  if (options.pipe_data_folder.empty()) return;
  folders.PdtFolder = ReturnFolder(AddBackSlash(options.pipe_data_folder));
  folders.LibraryFolder = folders.PdtFolder;
}

// Without a session file there is only the supply that stands for none.
bool BatchSession::ReadSupplies(const BatchOptions& options) {
  if (options.session_file.empty()) {
    session_.project.SupplyCount = 1;
    session_.project.SupplyNames[1] = "None";
    return true;
  }
  session_.folders.SessionFile = options.session_file;
  return ReadSessionFile(session_) == SessionFileState::kWhole;
}

bool BatchSession::ReadAuthorities(const BatchOptions& options) {
  try {
    if (options.authorities_csv.empty()) {
      return session_.authorities.ReadArchive(session_.folders.Program);
    }
    session_.authorities.ReadCsvFile(options.authorities_csv);
    return true;
  } catch (const RuntimeFailure& failure) {
    dialogs_.Show({.title = "Design authorities", .text = failure.Description()});
    return false;
  }
}

}  // namespace zeb
