#include "adapters/command_line/helper_program.h"

#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <unistd.h>

#include "adapters/posix/process/start_process.h"

namespace tessara {

namespace fs = std::filesystem;

int RunAndWait(const fs::path& program, const std::vector<std::string>& arguments) {
  Launch launch{{program.string()}, Streams::kShared};
  launch.command.insert(launch.command.end(), arguments.begin(), arguments.end());
  return WaitForProcess(StartProcess(launch));
}

PrivateScratch::PrivateScratch() {
  std::string name = (fs::temp_directory_path() / "tessara-deck-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::system_error(errno, std::generic_category());
  path_ = name;
}

PrivateScratch::~PrivateScratch() {
  std::error_code unknown;
  fs::remove_all(path_, unknown);
}

}  // namespace tessara
