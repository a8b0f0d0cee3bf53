#include "adapters/libreoffice/cleaner.h"

#include <array>
#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "adapters/posix/system_call.h"
#include "base/run_time_error.h"

namespace tessara {

namespace {

/// Its first argument is the folder, the others are the files. It waits for a line or for the end
/// of its input.
constexpr const char* kScript =
    "trap '' HUP INT TERM\n"
    "read -r line\n"
    "rm -f -- \"$@\"\n"
    "rm -rf -- \"$0\"\n";

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

pid_t StartShell(int input, const std::filesystem::path& folder,
                 const std::vector<std::filesystem::path>& files) {
  std::vector<std::string> command{"sh", "-c", kScript, folder.string()};
  command.reserve(command.size() + files.size());
  for (const std::filesystem::path& file : files) command.push_back(file.string());
  std::vector<char*> arguments;
  arguments.reserve(command.size() + 1);
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  return Surroundings(input).Start("/bin/sh", arguments.data());
}

/// Waits until the other end is closed, but no longer than that. False where it is not.
bool WaitForOtherEnd(int end, std::chrono::milliseconds longest) {
  pollfd other{end, POLLIN, 0};
  return Uninterrupted([&] { return poll(&other, 1, static_cast<int>(longest.count())); }) == 1;
}

}  // namespace

Cleaner::Cleaner(const std::filesystem::path& folder,
                 const std::vector<std::filesystem::path>& files,
                 std::chrono::milliseconds patience)
    : patience_(patience) {
  std::array<int, 2> ends{};
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
    throw RunTimeError(ErrorNumber::kAutomationError);
  }
  process_ = StartShell(ends[1], folder, files);
  close(ends[1]);
  input_ = ends[0];
  if (process_ != 0) return;
  close(input_);
  throw RunTimeError(ErrorNumber::kAutomationError);
}

Cleaner::~Cleaner() {
  // Whoever else has the input open may live on: the line tells that the server has ended.
  // A cleaner that somebody has killed hears nothing.
  [[maybe_unused]] const ssize_t sent = send(input_, "\n", 1, MSG_NOSIGNAL);
  // One that has not ended by then stays a child that nobody has waited for.
  const bool ends = WaitForOtherEnd(input_, patience_);
  close(input_);
  waitpid(process_, nullptr, ends ? 0 : WNOHANG);
}

}  // namespace tessara
