#include "ui/command_runner.h"

#include <QScopeGuard>
#include <exception>

#include "services/procedure.h"

namespace zeb {
namespace {

constexpr int kInternalError = 51;

// Failures of the libraries take the same way as the program's own.
void Translate(const CommandRunner::Statement& statement) {
  try {
    statement();
  } catch (const RuntimeFailure&) {
    throw;
  } catch (const std::exception& failure) {
    throw RuntimeFailure(kInternalError, failure.what());
  }
}

}  // namespace

void CommandRunner::RunCommand(const std::string& module, const std::string& procedure,
                               const Statement& statement) {
  if (IsRunning()) return;
  RunEvent(module, procedure, statement);
}

void CommandRunner::RunEvent(const std::string& module, const std::string& procedure,
                             const Statement& statement) {
  ++depth_;
  const auto leave = qScopeGuard([this] { --depth_; });
  Procedure(session_, module, procedure).Step(10, [&] { Translate(statement); });
  after_();
}

}  // namespace zeb
