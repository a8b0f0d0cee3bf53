#include "adapters/libreoffice/cleaner.h"

#include <array>
#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/run_time_error.h"

namespace tessara {

namespace {

/// Its first argument is the folder. A dying server may make one more file while the folder goes.
constexpr const char* kScript =
    "trap '' HUP INT TERM\n"
    "while read -r file; do set -- \"$@\" \"$file\"; done\n"
    "rm -f -- \"$@\"\n"
    "rm -rf -- \"$0\" || { sleep 1; rm -rf -- \"$0\"; }\n";

constexpr int kFirstOwnFile = 3;

/// What the process has open, and that it is of no group: a signal to the program's is not for it.
class Surroundings {
 public:
  explicit Surroundings(int input) {
    posix_spawn_file_actions_init(&files_);
    posix_spawn_file_actions_adddup2(&files_, input, STDIN_FILENO);
    posix_spawn_file_actions_addopen(&files_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&files_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&files_, kFirstOwnFile);
    posix_spawnattr_init(&attributes_);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSID);
  }
  Surroundings(const Surroundings&) = delete;
  Surroundings& operator=(const Surroundings&) = delete;
  ~Surroundings() {
    posix_spawn_file_actions_destroy(&files_);
    posix_spawnattr_destroy(&attributes_);
  }

  /// The process's number, or 0.
  pid_t Start(const char* program, char* const* arguments) const {
    pid_t process = 0;
    const int error = posix_spawn(&process, program, &files_, &attributes_, arguments, environ);
    return error == 0 ? process : 0;
  }

 private:
  posix_spawn_file_actions_t files_{};
  posix_spawnattr_t attributes_{};
};

pid_t StartShell(int input, std::string folder) {
  std::string shell = "sh";
  std::string option = "-c";
  std::string script = kScript;
  const std::array<char*, 5> arguments{shell.data(), option.data(), script.data(), folder.data(),
                                       nullptr};
  return Surroundings(input).Start("/bin/sh", arguments.data());
}

}  // namespace

Cleaner::Cleaner(const std::string& folder) {
  std::array<int, 2> ends{};
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
    throw RunTimeError(ErrorNumber::kAutomationError);
  }
  process_ = StartShell(ends[1], folder);
  close(ends[1]);
  input_ = ends[0];
  if (process_ != 0) return;
  close(input_);
  throw RunTimeError(ErrorNumber::kAutomationError);
}

Cleaner::~Cleaner() {
  close(input_);
  waitpid(process_, nullptr, 0);
}

void Cleaner::AlsoRemove(const std::string& file) const {
  const std::string line = file + '\n';
  // One that somebody has killed hears nothing.
  [[maybe_unused]] const ssize_t sent = send(input_, line.data(), line.size(), MSG_NOSIGNAL);
}

}  // namespace tessara
