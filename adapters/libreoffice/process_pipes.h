#pragma once

#include <filesystem>
#include <sys/types.h>
#include <vector>

namespace tessara {

/// The files of the pipes that a running server listens on: a killed one leaves them behind.
[[nodiscard]] std::vector<std::filesystem::path> PipesOf(pid_t process);

}  // namespace tessara
