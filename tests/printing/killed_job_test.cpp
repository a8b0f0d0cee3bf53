// The program is killed with a job on: what is left is looked at by a process that outlives it.

#include <array>
#include <csignal>
#include <doctest/doctest.h>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <vector>

#include "adapters/libreoffice/loader/loaded_spreadsheet.h"
#include "base/utf8.h"
#include "tests/printing/server_processes.h"
#include "tests/support/process_end.h"
#include "tests/support/wait_for.h"

namespace tessara {
namespace {

/// Where a job process tells that it is in its job.
constexpr int kTold = 9;

/// A process with a job on a server of its own.
class JobProcess {
 public:
  JobProcess() {
    REQUIRE(pipe(told_.data()) == 0);
    process_ = fork();
    if (process_ == 0) Execute();
    close(told_[1]);
  }
  JobProcess(const JobProcess&) = delete;
  JobProcess& operator=(const JobProcess&) = delete;
  ~JobProcess() { close(told_[0]); }

  [[nodiscard]] pid_t Number() const { return process_; }
  void WaitForJob() const {
    char told = 0;
    REQUIRE(read(told_[0], &told, 1) == 1);
  }
  /// From now on it does nothing more.
  void Stop() const { kill(process_, SIGSTOP); }
  void KillWithCleaner() const {
    kill(test::CleanerOf(process_), SIGKILL);
    Kill();
  }
  void Kill() const {
    kill(process_, SIGKILL);
    test::ExpectEndBySignal(process_, SIGKILL);
  }

 private:
  [[noreturn]] void Execute() const {
    dup2(told_[1], kTold);
    execl("/proc/self/exe", "tests_printing", "--no-skip", "--test-case=a job that waits", nullptr);
    _exit(1);
  }

  std::array<int, 2> told_{};
  pid_t process_ = 0;
};

void WaitUntilGone(const std::vector<std::string>& sockets) {
  for (const std::string& socket : sockets) {
    test::WaitFor(socket + " to go", [&] { return !std::filesystem::exists(socket); });
  }
}

void WaitUntilNothingIsLeftOf(const JobProcess& job, pid_t server) {
  test::WaitFor("the server to end", [&] { return !test::Runs(server); });
  test::WaitFor("its files to go", [&] { return test::FilesOf(job.Number()).empty(); });
}

TEST_CASE("a job that waits" * doctest::skip()) {
  LoadedSpreadsheet server{FromUtf8(PROGRAM_FOLDER)};
  const auto book = server.Bind(FromUtf8(PROGRAM_FOLDER "/Notelet.xlt"));
  REQUIRE(write(kTold, "x", 1) == 1);
  pause();
}

TEST_CASE("a program killed in the middle of a job leaves no server and no file") {
  const JobProcess job;
  job.WaitForJob();
  const pid_t server = test::WaitForServer(job.Number());
  // The folder, and the pipe beside it.
  CHECK(test::FilesOf(job.Number()).size() == 2);
  const std::vector<std::string> sockets = test::WaitForSockets(server);
  job.Kill();
  WaitUntilNothingIsLeftOf(job, server);
  WaitUntilGone(sockets);
}

TEST_CASE("a program killed before it has heard of its server's sockets leaves none") {
  const JobProcess job;
  const pid_t server = test::WaitForServer(job.Number());
  job.Stop();
  const std::vector<std::string> sockets = test::WaitForSockets(server);
  job.Kill();
  WaitUntilNothingIsLeftOf(job, server);
  WaitUntilGone(sockets);
}

TEST_CASE("what a killed program and its killed cleaner have left goes with the next job") {
  const JobProcess job;
  job.WaitForJob();
  const pid_t server = test::WaitForServer(job.Number());
  const std::vector<std::string> sockets = test::WaitForSockets(server);
  job.KillWithCleaner();
  test::WaitFor("the server to end", [&] { return !test::Runs(server); });
  for (const std::string& socket : sockets) CHECK(std::filesystem::exists(socket));
  LoadedSpreadsheet next{FromUtf8(PROGRAM_FOLDER)};
  next.Bind(FromUtf8(PROGRAM_FOLDER "/Notelet.xlt"))->Close();
  CHECK(test::FilesOf(job.Number()).empty());
  for (const std::string& socket : sockets) CHECK_FALSE(std::filesystem::exists(socket));
}

TEST_CASE("a program killed while its server starts leaves no server and no file") {
  const JobProcess job;
  const pid_t server = test::WaitForServer(job.Number());
  job.Kill();
  WaitUntilNothingIsLeftOf(job, server);
}

}  // namespace
}  // namespace tessara
