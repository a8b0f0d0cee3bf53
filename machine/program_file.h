#pragma once

#include "machine/machine.h"

namespace tessara {

/// The path of a side file: the program's folder, a separator, the name.
[[nodiscard]] Text ProgramFile(const Machine& machine, TextView name);

}  // namespace tessara
