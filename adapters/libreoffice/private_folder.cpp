#include "adapters/libreoffice/private_folder.h"

#include <cstdlib>
#include <string>
#include <system_error>

#include "adapters/libreoffice/server_sockets.h"
#include "adapters/posix/job_folder.h"
#include "base/folder_entries.h"
#include "base/run_time_error.h"

namespace tessara {

namespace {

namespace fs = std::filesystem;

fs::path Parent() {
  std::error_code error;
  const fs::path parent = fs::temp_directory_path(error);
  return error ? fs::path("/tmp") : parent;
}

void RemoveAll(const fs::path& folder) {
  std::error_code none;  // somebody else's stays
  for (const fs::path& socket : SocketsOf(folder)) fs::remove(socket, none);
  fs::remove_all(folder, none);
}

void SweepLeftBehind(const fs::path& parent) {
  std::error_code unread;
  for (const fs::directory_entry& entry : EntriesOf(parent, unread)) {
    if (IsLeftBehind(entry.path())) RemoveAll(entry.path());
  }
}

}  // namespace

PrivateFolder::PrivateFolder() {
  const fs::path parent = Parent();
  SweepLeftBehind(parent);
  std::string name = (parent / JobFolderPattern()).string();
  if (mkdtemp(name.data()) == nullptr) throw RunTimeError(ErrorNumber::kAutomationError);
  path_ = name;
  cleaner_ = std::make_unique<Cleaner>(path_, SocketsOf(path_));
}

}  // namespace tessara
