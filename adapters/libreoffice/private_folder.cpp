#include "adapters/libreoffice/private_folder.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string>
#include <system_error>
#include <unistd.h>

#include "adapters/libreoffice/server_sockets.h"
#include "base/folder_entries.h"
#include "base/run_time_error.h"

namespace tessara {

namespace {

namespace fs = std::filesystem;

constexpr const char* kPrefix = "tessara-print-";

fs::path Parent() {
  std::error_code error;
  const fs::path parent = fs::temp_directory_path(error);
  return error ? fs::path("/tmp") : parent;
}

/// True for a folder whose name carries the number of a process that is gone.
bool LeftBehind(const std::string& name) {
  if (!name.starts_with(kPrefix)) return false;
  const long process = std::strtol(name.c_str() + std::string(kPrefix).size(), nullptr, 10);
  return process > 0 && kill(static_cast<pid_t>(process), 0) != 0 && errno == ESRCH;
}

void RemoveAll(const fs::path& folder) {
  std::error_code none;  // somebody else's stays
  for (const fs::path& socket : SocketsOf(folder)) fs::remove(socket, none);
  fs::remove_all(folder, none);
}

void SweepLeftBehind(const fs::path& parent) {
  std::error_code unread;
  for (const fs::directory_entry& entry : EntriesOf(parent, unread)) {
    if (LeftBehind(entry.path().filename().string())) RemoveAll(entry.path());
  }
}

}  // namespace

PrivateFolder::PrivateFolder() {
  const fs::path parent = Parent();
  SweepLeftBehind(parent);
  std::string name = (parent / (kPrefix + std::to_string(getpid()) + "-XXXXXX")).string();
  if (mkdtemp(name.data()) == nullptr) throw RunTimeError(ErrorNumber::kAutomationError);
  path_ = name;
  cleaner_ = std::make_unique<Cleaner>(path_, SocketsOf(path_));
}

}  // namespace tessara
