#include "tests/printing/server_processes.h"

#include <filesystem>
#include <fstream>
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

bool IsServerOf(pid_t program, const fs::path& path) {
  const ProcessState process(path);
  return process.parent == program && process.name == "(soffice.bin)" && process.Runs();
}

}  // namespace

std::vector<pid_t> ServersOf(pid_t program) {
  std::vector<pid_t> servers;
  std::error_code unread;
  for (const fs::directory_entry& entry : EntriesOf("/proc", unread)) {
    const std::string name = entry.path().filename().string();
    const bool process = name.find_first_not_of("0123456789") == std::string::npos;
    if (process && IsServerOf(program, entry.path())) servers.push_back(std::stoi(name));
  }
  return servers;
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
