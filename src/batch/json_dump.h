#pragma once

#include <string>
#include <vector>

#include "model/project.h"
#include "platform/dialogs.h"

namespace zeb {

struct Session;

// What the check left behind, kept before a calculation changes it.
struct CheckResult {
  std::vector<std::string> lines;
  std::vector<CheckFault> faults;
  std::string warning_text;
  std::string check_summary;
};
[[nodiscard]] CheckResult KeepCheckResult(const Project& project);

// The whole model as one JSON object in UTF-8: every named single value, `lines`, `pipes` and
// `heads` from slot 1 up, `loops` as signed pipe slots, `errors`, the texts, and the `messages`
// that were shown. Reals print in the fewest digits that read back to the same single.
[[nodiscard]] std::string DumpJson(const Session& session, const CheckResult& check,
                                   const std::vector<Message>& messages);

}  // namespace zeb
