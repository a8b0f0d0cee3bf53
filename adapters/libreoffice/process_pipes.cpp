#include "adapters/libreoffice/process_pipes.h"

#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <system_error>

#include "base/folder_entries.h"

namespace tessara {

namespace {

namespace fs = std::filesystem;

/// What the system calls the sockets that the process has open: "socket:[NUMBER]".
std::set<std::string> SocketsOf(pid_t process) {
  std::set<std::string> sockets;
  std::error_code gone;
  for (const auto& entry : EntriesOf("/proc/" + std::to_string(process) + "/fd", gone)) {
    std::error_code none;
    sockets.insert(fs::read_symlink(entry.path(), none).string());
  }
  return sockets;
}

}  // namespace

std::vector<fs::path> PipesOf(pid_t process) {
  const std::set<std::string> sockets = SocketsOf(process);
  std::vector<fs::path> pipes;
  std::ifstream all("/proc/net/unix");
  for (std::string line; std::getline(all, line);) {
    std::istringstream fields(line);
    std::string address, references, protocol, flags, type, state, number, path;
    fields >> address >> references >> protocol >> flags >> type >> state >> number >> path;
    const bool pipe = path.find("/OSL_PIPE_") != std::string::npos;
    if (pipe && sockets.contains("socket:[" + number + "]")) pipes.emplace_back(path);
  }
  return pipes;
}

}  // namespace tessara
