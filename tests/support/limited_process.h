#pragma once

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

#include "tests/support/process_end.h"

namespace tessara::test {

/// False under the sanitizers: their own checks open files, and take memory beyond all bounds.
#ifdef TESSARA_SANITIZED
inline constexpr bool kOpenFilesCanBeLimited = false;
inline constexpr bool kMemoryCanBeLimited = false;
#else
inline constexpr bool kOpenFilesCanBeLimited = true;
inline constexpr bool kMemoryCanBeLimited = true;
#endif

/// From here on the process gets no more memory than this in all.
inline void LimitMemory(long bytes) {
  const rlimit limits{static_cast<rlim_t>(bytes), static_cast<rlim_t>(bytes)};
  setrlimit(RLIMIT_AS, &limits);
}

/// True where the condition holds in a process of its own.
template <class Condition>
bool HoldsInProcess(const Condition& condition) {
  const pid_t child = fork();
  if (child == 0) _exit(condition() ? 0 : 1);
  return ExitStatusOf(child) == 0;
}

/// Runs the action in a process in which the system refuses what is over the limit: RLIMIT_FSIZE
/// bytes of a file, RLIMIT_NOFILE open files. True where it came to its end.
template <class Action>
bool EndsWithLimit(int resource, rlim_t limit, const Action& action) {
  return HoldsInProcess([&] {
    // Too long a file is then an error of the write alone.
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limits{limit, limit};
    setrlimit(static_cast<__rlimit_resource>(resource), &limits);
    action();
    return true;
  });
}

/// Asks in a process that may do no more than any user, even where the administrator runs the
/// tests: is it so?
template <class Condition>
bool HoldsForAnyUser(const Condition& condition) {
  return HoldsInProcess([&] {
    constexpr uid_t kNobody = 65534;
    return (geteuid() != 0 || setuid(kNobody) == 0) && condition();
  });
}

}  // namespace tessara::test
