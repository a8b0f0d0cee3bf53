#pragma once

#include <csignal>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

namespace tessara::test {

// How a process of a test's own has ended. A signal that the test has not sent is a failure.

/// Waits for a process that ends by itself. Raises an error where a signal has ended it.
inline int ExitStatusOf(pid_t process) {
  int status = 0;
  waitpid(process, &status, 0);
  if (WIFEXITED(status)) return WEXITSTATUS(status);
  throw std::runtime_error("signal " + std::to_string(WTERMSIG(status)) + " has ended a process");
}

/// Waits for a process that was sent the signal. Raises an error where it has ended in another way.
inline void ExpectEndBySignal(pid_t process, int number) {
  int status = 0;
  waitpid(process, &status, 0);
  if (WIFSIGNALED(status) && WTERMSIG(status) == number) return;
  throw std::runtime_error("a process has not ended by the signal it was sent");
}

/// Raises an error where what stops a traced process is no system call: a signal that would end it.
inline void ExpectSystemCall(int status) {
  if (!WIFSTOPPED(status) || WSTOPSIG(status) == SIGTRAP) return;
  throw std::runtime_error("signal " + std::to_string(WSTOPSIG(status)) + " has stopped a process");
}

}  // namespace tessara::test
