#pragma once

#include "model/failure.h"

namespace zeb::test {

// The number of the failure that an action raises, 0 for none.
template <class Action>
int FailureOf(Action action) {
  try {
    action();
  } catch (const RuntimeFailure& failure) {
    return failure.Number();
  }
  return 0;
}

}  // namespace zeb::test
