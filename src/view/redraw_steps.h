#pragma once

#include "model/failure.h"
#include "services/session.h"

namespace zeb {

// Ends a redraw half done, by the user's choice.
struct RedrawAborted {};

// Runs the steps of a redraw. A run-time failure in one is logged and asks the user: Abort raises
// RedrawAborted, Retry repeats the step, Ignore goes on behind it.
class RedrawSteps {
 public:
  explicit RedrawSteps(Session& session) : session_(session) {}

  template <class Statement>
  void Step(int number, Statement statement) {
    for (bool again = true; again;) {
      try {
        statement();
        again = false;
      } catch (const RuntimeFailure& failure) {
        again = AskForRetry(number, failure);
      }
    }
  }

 private:
  [[nodiscard]] bool AskForRetry(int number, const RuntimeFailure& failure);

  Session& session_;
};

}  // namespace zeb
