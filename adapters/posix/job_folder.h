#pragma once

#include <filesystem>
#include <string>

namespace tessara {

// The temporary folder of a print job tells its process by its name: what a killed one has left
// behind goes with the next job that prints cards.

/// The name of a new one of this process, for mkdtemp.
[[nodiscard]] std::string JobFolderPattern();

/// True for one of this user's whose process is gone.
[[nodiscard]] bool IsLeftBehind(const std::filesystem::path& folder);

}  // namespace tessara
