#pragma once

#include "base/run_time_error.h"

namespace tessara {

/// The run-time error of failed reading or writing, by the system's error code.
[[nodiscard]] ErrorNumber TransferError(int systemError);

}  // namespace tessara
