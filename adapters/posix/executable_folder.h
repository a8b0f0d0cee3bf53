#pragma once

#include <filesystem>

namespace tessara {

/// The folder of the executable, links followed.
[[nodiscard]] std::filesystem::path ExecutableFolder();

}  // namespace tessara
