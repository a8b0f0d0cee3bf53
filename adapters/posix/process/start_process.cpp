#include "adapters/posix/process/start_process.h"

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include "adapters/posix/system_call.h"

namespace tessara {

namespace {

constexpr const char* kNothing = "/dev/null";

/// What the program has open.
class FileActions {
 public:
  explicit FileActions(const Launch& launch) {
    posix_spawn_file_actions_init(&actions_);
    if (launch.streams == Streams::kNothing) TakeStreams();
    if (launch.input) posix_spawn_file_actions_adddup2(&actions_, *launch.input, STDIN_FILENO);
    if (launch.opened) posix_spawn_file_actions_adddup2(&actions_, *launch.opened, kOpenedFile);
    posix_spawn_file_actions_addclosefrom_np(&actions_, kOpenedFile + (launch.opened ? 1 : 0));
  }
  FileActions(const FileActions&) = delete;
  FileActions& operator=(const FileActions&) = delete;
  ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }

  [[nodiscard]] const posix_spawn_file_actions_t* Get() const { return &actions_; }

 private:
  void TakeStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
      posix_spawn_file_actions_addopen(&actions_, stream, kNothing, O_RDWR, 0);
    }
  }

  posix_spawn_file_actions_t actions_{};
};

/// Its signals, and whether it has a session of its own.
class Attributes {
 public:
  explicit Attributes(Streams streams) {
    sigset_t ignoredHere{};
    sigemptyset(&ignoredHere);
    sigaddset(&ignoredHere, SIGPIPE);
    posix_spawnattr_init(&attributes_);
    posix_spawnattr_setsigdefault(&attributes_, &ignoredHere);
    const int session = streams == Streams::kNothing ? POSIX_SPAWN_SETSID : 0;
    posix_spawnattr_setflags(&attributes_, static_cast<short>(POSIX_SPAWN_SETSIGDEF | session));
  }
  Attributes(const Attributes&) = delete;
  Attributes& operator=(const Attributes&) = delete;
  ~Attributes() { posix_spawnattr_destroy(&attributes_); }

  [[nodiscard]] const posix_spawnattr_t* Get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_{};
};

/// Texts as the system wants them, while these live.
std::vector<char*> Pointers(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (const std::string& text : texts) pointers.push_back(const_cast<char*>(text.c_str()));
  pointers.push_back(nullptr);
  return pointers;
}

}  // namespace

pid_t StartProcess(const Launch& launch) {
  const FileActions files(launch);
  const Attributes attributes(launch.streams);
  const std::vector<char*> arguments = Pointers(launch.command);
  std::vector<char*> variables;
  if (launch.environment) variables = Pointers(*launch.environment);
  pid_t process = 0;
  const int error = posix_spawn(&process, arguments.front(), files.Get(), attributes.Get(),
                                arguments.data(), launch.environment ? variables.data() : environ);
  if (error != 0) throw std::system_error(error, std::generic_category());
  return process;
}

int WaitForProcess(pid_t process) {
  int status = 0;
  Checked(Uninterrupted([&] { return waitpid(process, &status, 0); }));
  constexpr int kEndedBySignal = 128;
  return WIFEXITED(status) ? WEXITSTATUS(status) : kEndedBySignal + WTERMSIG(status);
}

void StartDetached(const std::vector<std::string>& command) {
  // A shell between the two ends at once: the program is nobody's to wait for.
  Launch launch{{"/bin/sh", "-c", "\"$@\" &", "sh"}};
  launch.command.insert(launch.command.end(), command.begin(), command.end());
  try {
    WaitForProcess(StartProcess(launch));
  } catch (const std::system_error&) {
    // What is started this way is a convenience.
  }
}

}  // namespace tessara
