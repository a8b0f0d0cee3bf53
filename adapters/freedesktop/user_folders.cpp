#include "adapters/freedesktop/user_folders.h"

#include <cstdlib>

namespace tessara {

namespace fs = std::filesystem;

namespace {

/// A variable that holds a relative path counts as missing.
fs::path UserFolder(const char* variable, const fs::path& belowHome) {
  const char* const chosen = std::getenv(variable);
  if (chosen != nullptr && fs::path(chosen).is_absolute()) return chosen;
  const char* const home = std::getenv("HOME");
  return home != nullptr && *home != '\0' ? home / belowHome : fs::path();
}

}  // namespace

fs::path UserDataFolder() {
  return UserFolder("XDG_DATA_HOME", ".local/share");
}

fs::path UserStateFolder() {
  return UserFolder("XDG_STATE_HOME", ".local/state");
}

}  // namespace tessara
