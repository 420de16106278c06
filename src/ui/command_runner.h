#pragma once

#include <functional>
#include <string>
#include <utility>

#include "services/session.h"

namespace zeb {

// The border around everything that the user starts: a failure in it shows the box that names the
// form and the procedure, and the program goes on.
class CommandRunner {
 public:
  // `after` runs behind each event, such as to bring the picture up to date.
  CommandRunner(Session& session, std::function<void()> after)
      : session_(session), after_(std::move(after)) {}

  using Statement = std::function<void()>;
  // A command of the main window. While another one runs it does nothing.
  void RunCommand(const std::string& module, const std::string& procedure,
                  const Statement& statement);
  // An event of a form, also of one that a command has opened.
  void RunEvent(const std::string& module, const std::string& procedure,
                const Statement& statement);

  [[nodiscard]] bool IsRunning() const { return depth_ > 0; }

 private:
  Session& session_;
  std::function<void()> after_;
  int depth_ = 0;
};

}  // namespace zeb
