#include "tests/printing/server_processes.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace tessara::test {

namespace {

namespace fs = std::filesystem;

/// The fields of a process's state file: number, name in parentheses, state, parent.
bool IsOurServer(const fs::path& process) {
  std::ifstream file(process / "stat");
  std::string number, name, state;
  pid_t parent = 0;
  file >> number >> name >> state >> parent;
  return parent == getpid() && name == "(soffice.bin)" && state != "Z";
}

}  // namespace

std::vector<pid_t> ServerProcesses() {
  std::vector<pid_t> servers;
  for (const fs::directory_entry& entry : fs::directory_iterator("/proc")) {
    const std::string name = entry.path().filename().string();
    const bool process = name.find_first_not_of("0123456789") == std::string::npos;
    if (process && IsOurServer(entry.path())) servers.push_back(std::stoi(name));
  }
  return servers;
}

pid_t WaitForServer() {
  for (;;) {
    const std::vector<pid_t> servers = ServerProcesses();
    if (!servers.empty()) return servers.front();
    std::this_thread::yield();
  }
}

std::vector<std::string> FilesLeftBehind() {
  std::vector<std::string> left;
  const std::string mark = "tessara-print-" + std::to_string(getpid());
  for (const fs::directory_entry& entry : fs::directory_iterator(fs::temp_directory_path())) {
    if (entry.path().string().find(mark) != std::string::npos) left.push_back(entry.path());
  }
  return left;
}

}  // namespace tessara::test
