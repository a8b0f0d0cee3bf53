#pragma once

#include <string>
#include <vector>

namespace tessara {

/// Starts a program by its path, in a session of its own and without a terminal. Nobody waits for
/// it, and it leaves no dead child behind. One that can't be started is silent.
void StartDetached(const std::vector<std::string>& command);

}  // namespace tessara
