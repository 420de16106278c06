#pragma once

#include <string>

#include "model/failure.h"
#include "services/session.h"

namespace zeb {

// Shows the box that tells of a failure while a file is read or written; `line` is the number of
// the statement. True when the user wants it run again.
[[nodiscard]] bool AskToRetry(Session& session, const RuntimeFailure& failure, int line);

// Notes in the error log that a file was given up. `source` is the procedure.
void LogFileFailure(Session& session, const RuntimeFailure& failure, const std::string& source,
                    int line);

// Runs a statement of a procedure that reads or writes a file, again as long as it fails and the
// user asks for that. False when it was given up; the failure is then in the error log.
template <class Statement>
[[nodiscard]] bool RunFileStatement(Session& session, const std::string& source, int line,
                                    Statement statement) {
  for (;;) {
    try {
      statement();
      return true;
    } catch (const RuntimeFailure& failure) {
      if (AskToRetry(session, failure, line)) continue;
      LogFileFailure(session, failure, source, line);
      return false;
    }
  }
}

}  // namespace zeb
