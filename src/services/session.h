#pragma once

#include <array>
#include <map>
#include <string>

#include "model/project.h"
#include "platform/platform.h"
#include "services/design_authorities.h"
#include "services/error_log.h"
#include "services/folders.h"
#include "services/settings.h"
#include "services/units.h"

namespace zeb {

// One run of the program: the open project and all that commands need besides it. Passed by
// reference to every command.
struct Session {
  // The parts refer to the session's own platform, so a session is not copied.
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  explicit Session(const Platform& platform_in)
      : platform(platform_in),
        settings(platform.files),
        authorities(platform, settings),
        log(platform) {}

  Platform platform;
  Project project;
  Folders folders;
  Settings settings;
  DesignAuthorities authorities;
  ErrorLog log;
  Units units;

  bool SuppressErrors = false;  // the boxes of check errors are not shown
  bool AutoSave = true;         // every fifth change is saved
  bool VerboseLogging = false;  // trapped failures go to the error log

  std::string CommandFile;  // the project named on the command line
  std::string Identifier;   // this installation's, for the header of new projects
  std::string InstallationName = "ZEB";
  std::array<std::string, 4> SessionTexts;  // the first line of the session file

  // The real file behind each upper-cased project path of this session.
  std::map<std::string, std::string> RealPaths;
};

}  // namespace zeb
