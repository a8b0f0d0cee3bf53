#pragma once

#include <string>
#include <sys/types.h>
#include <unistd.h>
#include <vector>

namespace tessara::test {

/// The spreadsheet servers that a process, or this one, has started and that have not ended.
std::vector<pid_t> ServersOf(pid_t program);
std::vector<pid_t> ServerProcesses();
/// Waits until one is there.
pid_t WaitForServer(pid_t program = getpid());
/// False for a process that has ended, waited for or not.
bool Runs(pid_t process);
/// What servers of a process, or of this one, have in the folder of temporary files.
std::vector<std::string> FilesOf(pid_t program);
std::vector<std::string> FilesLeftBehind();

}  // namespace tessara::test
