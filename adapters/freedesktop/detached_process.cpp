#include "adapters/freedesktop/detached_process.h"

#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tessara {

namespace {

[[noreturn]] void Become(char* const* arguments) {
  const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) dup2(nowhere, stream);
  setsid();
  signal(SIGPIPE, SIG_DFL);
  execv(arguments[0], arguments);
  _exit(1);
}

}  // namespace

void StartDetached(const std::vector<std::string>& command) {
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (const std::string& argument : command) {
    arguments.push_back(const_cast<char*>(argument.c_str()));
  }
  arguments.push_back(nullptr);
  // Forked twice: the process is nobody's to wait for.
  const pid_t child = fork();
  if (child == 0) {
    if (fork() == 0) Become(arguments.data());
    _exit(0);
  }
  if (child > 0) waitpid(child, nullptr, 0);
}

}  // namespace tessara
