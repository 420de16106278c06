#include "ui/about.h"

#include "services/number_text.h"
#include "zeb_version.h"

namespace zeb {

void ShowAbout(Session& session) {
  const std::string version =
      PlainText(kVersionMajor) + "." + PlainText(kVersionMinor) + "." + PlainText(kVersionRevision);
  session.platform.dialogs.Show(
      {.title = "About ZEB",
       .text = "ZEB " + version + "\r\n\r\nHydraulic analysis of sprinkler pipe networks",
       .icon = MessageIcon::kInformation});
}

}  // namespace zeb
