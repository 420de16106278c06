#include "project/project_bundle.h"

#include <string>

#include "project/project_writer.h"
#include "services/dates.h"
#include "services/paths.h"
#include "services/procedure.h"
#include "services/support_bundle.h"
#include "services/text.h"

namespace zeb {
namespace {

std::string NameByTime(const DateTime& time) {
  return ReplaceAll(ReplaceAll(DateText(time) + TimeText(time), "/", ""), ":", "") + ".zeb";
}

}  // namespace

void savePrjDataToZIP(Session& session) {
  const std::string folder = AddBackSlash(session.folders.Program);
  const std::string name = NameByTime(session.platform.clock.Now());
  Procedure procedure(session, "Module3", "savePrjDataToZIP");
  procedure.Step(20, [&] { WriteProjectCopy(session, folder + name); });
  procedure.Step(30, [&] {
    session.platform.archive.Write(folder + kProjectBundle,
                                   {{name, session.platform.files.ReadFile(folder + name)}}, "");
  });
}

}  // namespace zeb
