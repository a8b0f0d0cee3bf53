#pragma once

#include "base/run_time_error.h"

namespace tessara::test {

/// The number of the run-time error that the action raises; 0 where it raises none.
template <class Action>
int ErrorOf(const Action& action) {
  try {
    static_cast<void>(action());
  } catch (const RunTimeError& error) {
    return static_cast<int>(error.Number());
  }
  return 0;
}

}  // namespace tessara::test
