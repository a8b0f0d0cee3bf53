#pragma once

#include <csignal>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/support/process_end.h"

namespace tessara::test {

/// From one stop at which a process is killed to the next. Under the sanitizers, where a process
/// takes long to start, not every one of them is tried.
#ifdef TESSARA_SANITIZED
inline constexpr int kStopsApart = 7;
#else
inline constexpr int kStopsApart = 1;
#endif

/// Runs the action in a process of its own and kills that at its `which`-th stop, counted from 1.
/// A system call has two stops: before it has done anything, and after it has done all.
/// False where the action came to its end before.
template <class Action>
bool KilledAt(int which, const Action& action) {
  const pid_t child = fork();
  if (child == 0) {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    action();
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, WUNTRACED);
  for (int stop = 0; stop < which; ++stop) {
    const bool traced = ptrace(PTRACE_SYSCALL, child, nullptr, nullptr) == 0;
    if (traced) waitpid(child, &status, 0);
    ExpectSystemCall(status);
    if (traced && WIFSTOPPED(status)) continue;
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    if (!traced || !WIFEXITED(status)) throw std::runtime_error("the process can't be stopped");
    return false;
  }
  kill(child, SIGKILL);
  ExpectEndBySignal(child, SIGKILL);
  return true;
}

}  // namespace tessara::test
