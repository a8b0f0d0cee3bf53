#pragma once

#include <exception>

#include "base/run_time_error.h"

namespace tessara {

/// What an exception of the standard library comes to as a run-time error: no memory, or a failure
/// of the file system by the system's code for it; an internal error where none of them fits.
[[nodiscard]] RunTimeError RunTimeErrorOf(const std::exception& foreign);

}  // namespace tessara
