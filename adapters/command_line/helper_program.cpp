#include "adapters/command_line/helper_program.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <system_error>

#include "adapters/posix/job_folder.h"
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

}  // namespace

EndingSignals::EndingSignals() {
  received = 0;
  struct sigaction passOn {};
  passOn.sa_handler = PassOn;
  passOn.sa_flags = SA_RESTART;
  for (std::size_t at = 0; at < kEndingSignals.size(); ++at) {
    sigaction(kEndingSignals[at], nullptr, &before_[at]);
    if (before_[at].sa_handler != SIG_IGN) sigaction(kEndingSignals[at], &passOn, nullptr);
  }
}

EndingSignals::~EndingSignals() {
  for (std::size_t at = 0; at < kEndingSignals.size(); ++at)
    sigaction(kEndingSignals[at], &before_[at], nullptr);
}

int RunAndWait(const fs::path& program, const std::vector<std::string>& arguments) {
  Launch launch{{program.string()}, Streams::kShared};
  launch.command.insert(launch.command.end(), arguments.begin(), arguments.end());
  const pid_t helper = StartProcess(launch);
  running = helper;
  // One that came before there was a helper.
  if (const int signal = received; signal != 0) kill(helper, signal);
  const int status = WaitForProcess(helper);
  running = 0;
  return status;
}

PrivateScratch::PrivateScratch() {
  std::string name = (fs::temp_directory_path() / JobFolderPattern()).string();
  if (mkdtemp(name.data()) == nullptr) throw std::system_error(errno, std::generic_category());
  path_ = name;
}

PrivateScratch::~PrivateScratch() {
  std::error_code unknown;
  fs::remove_all(path_, unknown);
}

}  // namespace tessara
