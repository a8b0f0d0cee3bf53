#pragma once

#include "base/run_time_error.h"

namespace tessara {

/// Runs one statement of a routine that goes on after errors: a run-time error ends the statement
/// and nothing else. The end of the program is no such error. False where there was one.
template <class Statement>
bool SkipErrors(const Statement& statement) {
  try {
    statement();
    return true;
  } catch (const RunTimeError&) {
    // The routine's next statement runs: nobody is told.
    return false;
  }
}

}  // namespace tessara
