#pragma once

#include <exception>

#include "base/run_time_error.h"

namespace tessara {

// What errors from elsewhere come to as run-time errors: those of the system, by their codes (of
// <cerrno>), and those of the standard library.

/// Of a failed operation on a path: 53 and 76 (nothing there), 61 (disk full), 67 (too many files),
/// 70 (permission), 71 (disk not ready), 57 (device); 75 where none of them fits.
[[nodiscard]] ErrorNumber PathError(int systemError);
/// Of reading or writing a file that is open: the same but for 53, 76 and 75, which are 57.
[[nodiscard]] ErrorNumber TransferError(int systemError);
/// No memory is 7, and a failure of the file system the error of its path; an internal error where
/// none of them fits.
[[nodiscard]] RunTimeError RunTimeErrorOf(const std::exception& foreign);

}  // namespace tessara
