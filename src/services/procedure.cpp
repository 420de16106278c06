#include "services/procedure.h"

#include "services/number_text.h"
#include "services/session.h"
#include "services/text.h"

namespace zeb {

void Procedure::Report(int step, const RuntimeFailure& failure) {
  const std::string source = "ZEB." + module_ + "." + name_;
  session_.platform.dialogs.Show({.title = "ZEB",
                                  .text = failure.Description() + std::string(kLineBreak) + "in " +
                                          source + " at line " + PlainText(step),
                                  .icon = MessageIcon::kWarning});
  if (session_.VerboseLogging) {
    session_.log.LogError({.text = failure.Description(), .source = source, .line = step});
  }
}

}  // namespace zeb
