#pragma once

#include <filesystem>

namespace tessara {

// The user's folders by the XDG base directory rules; empty where there is no home.

/// $XDG_DATA_HOME, else ~/.local/share.
[[nodiscard]] std::filesystem::path UserDataFolder();
/// $XDG_STATE_HOME, else ~/.local/state.
[[nodiscard]] std::filesystem::path UserStateFolder();

}  // namespace tessara
