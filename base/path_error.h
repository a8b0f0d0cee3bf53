#pragma once

#include <optional>

#include "base/run_time_error.h"

namespace tessara {

/// What an error code of the system means wherever it happens; none where that hangs on what was
/// tried.
[[nodiscard]] std::optional<ErrorNumber> CommonError(int systemError);

/// The run-time error of a failed operation on a path, by the system's error code.
[[nodiscard]] ErrorNumber PathError(int systemError);

}  // namespace tessara
