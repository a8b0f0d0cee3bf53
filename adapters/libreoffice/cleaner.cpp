#include "adapters/libreoffice/cleaner.h"

#include <array>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

#include "adapters/posix/process/start_process.h"
#include "adapters/posix/system_call.h"
#include "base/run_time_error.h"

namespace tessara {

namespace {

/// Its first argument is the folder, the others are the files. It waits for a line or for the end
/// of its input.
constexpr const char* kCleaningScript =
    "trap '' HUP INT TERM\n"
    "read -r line\n"
    "rm -f -- \"$@\"\n"
    "rm -rf -- \"$0\"\n";

Launch Shell(int input, const std::filesystem::path& folder,
             const std::vector<std::filesystem::path>& files) {
  Launch launch{{"/bin/sh", "-c", kCleaningScript, folder.string()}};
  for (const std::filesystem::path& file : files) launch.command.push_back(file.string());
  launch.input = input;
  return launch;
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
  Descriptor ownEnd(ends[0]);
  const Descriptor otherEnd(ends[1]);
  try {
    process_ = StartProcess(Shell(otherEnd.Get(), folder, files));
  } catch (const std::system_error&) {
    throw RunTimeError(ErrorNumber::kAutomationError);
  }
  input_ = ownEnd.Release();
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
