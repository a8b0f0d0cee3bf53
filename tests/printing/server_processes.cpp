#include "tests/printing/server_processes.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <unistd.h>

#include "base/folder_entries.h"
#include "tests/support/wait_for.h"

namespace tessara::test {

namespace {

namespace fs = std::filesystem;

/// Of a process's state file. No state: there is no such process.
struct ProcessState {
  std::string name;  ///< in parentheses
  std::string state;
  pid_t parent = 0;

  explicit ProcessState(const fs::path& process) {
    std::ifstream file(process / "stat");
    std::string number;
    file >> number >> name >> state >> parent;
  }
  [[nodiscard]] bool Runs() const { return !state.empty() && state != "Z"; }
};

std::vector<pid_t> ChildrenOf(pid_t parent, const std::string& program) {
  std::vector<pid_t> children;
  std::error_code unread;
  for (const fs::directory_entry& entry : EntriesOf("/proc", unread)) {
    const std::string name = entry.path().filename().string();
    if (name.find_first_not_of("0123456789") != std::string::npos) continue;
    const ProcessState process(entry.path());
    const bool child = process.parent == parent && process.name == "(" + program + ")";
    if (child && process.Runs()) children.push_back(std::stoi(name));
  }
  return children;
}

/// What the system calls the sockets that the process has open: "socket:[NUMBER]".
std::set<std::string> OpenSocketsOf(pid_t process) {
  std::set<std::string> sockets;
  std::error_code gone;
  for (const auto& entry : EntriesOf("/proc/" + std::to_string(process) + "/fd", gone)) {
    std::error_code none;
    sockets.insert(fs::read_symlink(entry.path(), none).string());
  }
  return sockets;
}

}  // namespace

std::vector<pid_t> ServersOf(pid_t program) {
  return ChildrenOf(program, "soffice.bin");
}

pid_t CleanerOf(pid_t program) {
  std::vector<pid_t> shells;
  WaitFor("a cleaner", [&] {
    shells = ChildrenOf(program, "sh");
    return !shells.empty();
  });
  return shells.front();
}

std::vector<std::string> SocketsOf(pid_t server) {
  const std::set<std::string> open = OpenSocketsOf(server);
  std::vector<std::string> sockets;
  std::ifstream all("/proc/net/unix");
  for (std::string line; std::getline(all, line);) {
    std::istringstream fields(line);
    std::string address, references, protocol, flags, type, state, number, path;
    fields >> address >> references >> protocol >> flags >> type >> state >> number >> path;
    const bool pipe = path.find("/OSL_PIPE_") != std::string::npos;
    if (pipe && open.contains("socket:[" + number + "]")) sockets.push_back(path);
  }
  return sockets;
}

std::vector<std::string> WaitForSockets(pid_t server) {
  constexpr std::size_t kBoth = 2;
  std::vector<std::string> sockets;
  WaitFor("the server's sockets", [&] {
    sockets = SocketsOf(server);
    return std::set(sockets.begin(), sockets.end()).size() >= kBoth;
  });
  return sockets;
}

std::vector<pid_t> ServerProcesses() {
  return ServersOf(getpid());
}

pid_t WaitForServer(pid_t program) {
  std::vector<pid_t> servers;
  WaitFor("a server", [&] {
    servers = ServersOf(program);
    return !servers.empty();
  });
  return servers.front();
}

void WaitForServersToEnd() {
  WaitFor("the servers to end", [] { return ServerProcesses().empty(); });
}

bool Runs(pid_t process) {
  return ProcessState("/proc/" + std::to_string(process)).Runs();
}

std::vector<std::string> FilesOf(pid_t program) {
  std::vector<std::string> left;
  const std::string mark = "tessara-print-" + std::to_string(program) + "-";
  std::error_code unread;
  for (const fs::directory_entry& entry : EntriesOf(fs::temp_directory_path(), unread)) {
    if (entry.path().string().find(mark) != std::string::npos) left.push_back(entry.path());
  }
  return left;
}

std::vector<std::string> FilesLeftBehind() {
  return FilesOf(getpid());
}

}  // namespace tessara::test
