#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

namespace tessara::test {

/// The spreadsheet servers that this process has started and that have not ended.
std::vector<pid_t> ServerProcesses();
/// Waits until one is there.
pid_t WaitForServer();
/// What servers of this process have left in the folder of temporary files.
std::vector<std::string> FilesLeftBehind();

}  // namespace tessara::test
