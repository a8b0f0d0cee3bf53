#include "adapters/command_line/helper_program.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <system_error>
#include <unistd.h>

#include "adapters/posix/process/start_process.h"

namespace tessara {

namespace {

namespace fs = std::filesystem;

constexpr std::array<int, 3> kEndingSignals = {SIGHUP, SIGINT, SIGTERM};

std::atomic<pid_t> running = 0;
std::atomic<int> received = 0;

void PassOn(int signal) {
  received = signal;
  if (const pid_t helper = running; helper > 0) kill(helper, signal);
}

/// While this lives, what is to end this program ends the helper, so that this one can still tidy
/// up. A signal that is ignored stays so.
class EndingSignals {
 public:
  EndingSignals() {
    received = 0;
    struct sigaction passOn {};
    passOn.sa_handler = PassOn;
    passOn.sa_flags = SA_RESTART;
    for (std::size_t at = 0; at < kEndingSignals.size(); ++at) {
      sigaction(kEndingSignals[at], nullptr, &before_[at]);
      if (before_[at].sa_handler != SIG_IGN) sigaction(kEndingSignals[at], &passOn, nullptr);
    }
  }
  EndingSignals(const EndingSignals&) = delete;
  EndingSignals& operator=(const EndingSignals&) = delete;
  ~EndingSignals() {
    running = 0;
    for (std::size_t at = 0; at < kEndingSignals.size(); ++at)
      sigaction(kEndingSignals[at], &before_[at], nullptr);
  }

 private:
  std::array<struct sigaction, kEndingSignals.size()> before_{};
};

}  // namespace

int RunAndWait(const fs::path& program, const std::vector<std::string>& arguments) {
  Launch launch{{program.string()}, Streams::kShared};
  launch.command.insert(launch.command.end(), arguments.begin(), arguments.end());
  const EndingSignals signals;
  const pid_t helper = StartProcess(launch);
  running = helper;
  // One that came before there was a helper.
  if (const int signal = received; signal != 0) kill(helper, signal);
  return WaitForProcess(helper);
}

PrivateScratch::PrivateScratch() {
  // What a killed program leaves goes with the next print job, which knows it by its name.
  const std::string prefix = "tessara-print-" + std::to_string(getpid());
  std::string name = (fs::temp_directory_path() / (prefix + "-XXXXXX")).string();
  if (mkdtemp(name.data()) == nullptr) throw std::system_error(errno, std::generic_category());
  path_ = name;
}

PrivateScratch::~PrivateScratch() {
  std::error_code unknown;
  fs::remove_all(path_, unknown);
}

}  // namespace tessara
