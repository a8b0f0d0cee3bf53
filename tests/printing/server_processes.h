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
/// Waits until this process has none: a killed one takes a moment to end.
void WaitForServersToEnd();
/// The shell that is to remove what a job leaves.
pid_t CleanerOf(pid_t program);
/// False for a process that has ended, waited for or not.
bool Runs(pid_t process);
/// What servers of a process, or of this one, have in the folder of temporary files.
std::vector<std::string> FilesOf(pid_t program);
std::vector<std::string> FilesLeftBehind();
/// The files of the sockets that the server of LibreOffice listens on.
std::vector<std::string> SocketsOf(pid_t server);
/// Waits until it has both, the one for its client and the one for others of its profile.
std::vector<std::string> WaitForSockets(pid_t server);

}  // namespace tessara::test
