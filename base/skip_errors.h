#pragma once

#include "base/run_time_error.h"

namespace tessara {

/// Runs one statement of a routine that goes on after errors: a run-time error ends the statement
/// and nothing else. The end of the program is no such error.
template <class Statement>
void SkipErrors(const Statement& statement) {
  try {
    statement();
  } catch (const RunTimeError&) {
    // The routine's next statement runs: nobody is told.
  }
}

}  // namespace tessara
