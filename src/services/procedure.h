#pragma once

#include <string>
#include <utility>

#include "model/failure.h"

namespace zeb {

struct Session;

// "The message, then the next statement": runs the steps of a command so that a run-time failure in
// one shows a box with the description, where it happened and the step's number, and the next step
// runs. With verbose logging the failure also goes to the error log.
class Procedure {
 public:
  Procedure(Session& session, std::string module, std::string name)
      : session_(session), module_(std::move(module)), name_(std::move(name)) {}

  // True when the step was done without a failure.
  template <class Statement>
  bool Step(int number, Statement statement) {
    try {
      statement();
      return true;
    } catch (const RuntimeFailure& failure) {
      Report(number, failure);
      return false;
    }
  }

 private:
  void Report(int step, const RuntimeFailure& failure);

  Session& session_;
  std::string module_;
  std::string name_;
};

}  // namespace zeb
