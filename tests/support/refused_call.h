#pragma once

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <doctest/doctest.h>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "tests/support/process_end.h"

namespace tessara::test {

/// What the system says where it refuses a call on a file. Under the sanitizers one of these has to
/// do: a process takes them long to start.
#ifdef TESSARA_SANITIZED
inline constexpr int kRefusals[] = {EIO};
#else
inline constexpr int kRefusals[] = {EACCES, ENOSPC, EIO, EINTR, ENOENT, EMFILE, EROFS};
#endif

/// True for the calls that open, read, write, name, look up, lock or remove files.
inline bool IsFileCall(long call) {
  constexpr long kFileCalls[] = {
      SYS_read,       SYS_pread64,    SYS_readv,     SYS_write,      SYS_pwrite64,
      SYS_writev,     SYS_open,       SYS_openat,    SYS_creat,      SYS_close,
      SYS_lseek,      SYS_stat,       SYS_lstat,     SYS_fstat,      SYS_newfstatat,
      SYS_statx,      SYS_access,     SYS_faccessat, SYS_faccessat2, SYS_readlink,
      SYS_readlinkat, SYS_getdents64, SYS_mkdir,     SYS_mkdirat,    SYS_rename,
      SYS_renameat,   SYS_renameat2,  SYS_link,      SYS_linkat,     SYS_symlink,
      SYS_unlink,     SYS_unlinkat,   SYS_rmdir,     SYS_chmod,      SYS_fchmod,
      SYS_fchmodat,   SYS_fchown,     SYS_ftruncate, SYS_truncate,   SYS_fsync,
      SYS_fdatasync,  SYS_flock,      SYS_fcntl,     SYS_sendfile,   SYS_copy_file_range,
      SYS_utimensat,
  };
  return std::find(std::begin(kFileCalls), std::end(kFileCalls), call) != std::end(kFileCalls);
}

/// A child process whose calls stop it, on their way in and on their way out.
class StoppedAtCalls {
 public:
  template <class Action>
  explicit StoppedAtCalls(const Action& action) : child_(fork()) {
    if (child_ == 0) {
      ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
      raise(SIGSTOP);
      _exit(action());
    }
    waitpid(child_, &status_, WUNTRACED);
  }

  /// False where the child has ended.
  bool GoOn() {
    if (ptrace(PTRACE_SYSCALL, child_, nullptr, nullptr) != 0) {
      throw std::runtime_error("the process can't be stopped");
    }
    waitpid(child_, &status_, 0);
    ExpectSystemCall(status_);
    return WIFSTOPPED(status_);
  }
  [[nodiscard]] long Call() const { return static_cast<long>(Registers().orig_rax); }
  /// On the way in: the system does not do the call.
  void Prevent() const {
    user_regs_struct registers = Registers();
    registers.orig_rax = static_cast<unsigned long long>(-1);
    ptrace(PTRACE_SETREGS, child_, nullptr, &registers);
  }
  /// On the way out: what the child is told.
  void Refuse(int error) const {
    user_regs_struct registers = Registers();
    registers.rax = static_cast<unsigned long long>(-error);
    ptrace(PTRACE_SETREGS, child_, nullptr, &registers);
  }
  /// What the action returned; -1 where it did not come to its end.
  int Result() {
    while (GoOn()) continue;
    return WIFEXITED(status_) ? WEXITSTATUS(status_) : -1;
  }

 private:
  [[nodiscard]] user_regs_struct Registers() const {
    user_regs_struct registers{};
    ptrace(PTRACE_GETREGS, child_, nullptr, &registers);
    return registers;
  }

  pid_t child_;
  int status_ = 0;
};

/// The calls on files that the action makes, in a process of its own.
template <class Action>
std::vector<long> FileCallsOf(const Action& action) {
  StoppedAtCalls child(action);
  std::vector<long> calls;
  while (child.GoOn()) {
    if (IsFileCall(child.Call())) calls.push_back(child.Call());
    if (!child.GoOn()) break;
  }
  return calls;
}

/// Runs the action in a process of its own in which the system refuses the `which`-th call on
/// files, counted from 1, with the error. What the action returned, or -1 where it broke down;
/// nothing where it has fewer calls.
template <class Action>
std::optional<int> ResultWithRefusal(int which, int error, const Action& action) {
  StoppedAtCalls child(action);
  int count = 0;
  while (child.GoOn()) {
    const bool refused = IsFileCall(child.Call()) && ++count == which;
    if (refused) child.Prevent();
    if (!child.GoOn()) break;
    if (!refused) continue;
    child.Refuse(error);
    return child.Result();
  }
  return std::nullopt;
}

/// Refuses each call of the action in turn, with each error. Before each run `prepare` is called,
/// after it `check` with what the action returned. How many calls there are.
template <class Prepare, class Action, class Check>
int RefuseEachInTurn(const Prepare& prepare, const Action& action, const Check& check) {
  for (int which = 1;; ++which) {
    for (const int error : kRefusals) {
      prepare();
      const std::optional<int> result = ResultWithRefusal(which, error, action);
      if (!result) return which - 1;
      CAPTURE(which);
      CAPTURE(error);
      check(*result);
    }
  }
}

}  // namespace tessara::test
