#pragma once

#include "platform/commands.h"
#include "services/session.h"

namespace zeb {

// The commands that lower folders start, carried out on a session. Bind it before use: the session
// needs its commands to be made.
class SessionCommands : public Commands {
 public:
  void Bind(Session& session) { session_ = &session; }

  void CheckProject(CheckMode mode) override;
  void ComposePipeLine(int pipe) override;
  void ViewCommandReset() override;

 private:
  Session* session_ = nullptr;
};

}  // namespace zeb
