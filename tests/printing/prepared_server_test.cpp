// The server that starts while the user still chooses what to print.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <doctest/doctest.h>
#include <memory>
#include <thread>
#include <vector>

#include "adapters/libreoffice/loader/loaded_spreadsheet.h"
#include "base/utf8.h"
#include "tests/printing/office_fixture.h"
#include "tests/printing/server_processes.h"
#include "tests/support/wait_for.h"

namespace tessara {
namespace {

using namespace std::chrono_literals;
using test::ServerProcesses;

constexpr auto kAtOnce = 0ms;
/// Longer than any of these tests.
constexpr auto kMuchLater = std::chrono::hours(1);

struct Office {
  LoadedSpreadsheet server{FromUtf8(PROGRAM_FOLDER)};
  Text path = FromUtf8(PROGRAM_FOLDER "/Notelet.xlt");

  void Prepare(std::chrono::milliseconds after = kAtOnce) { server.Prepare(path, after); }
  /// Starts the server and tells its number.
  pid_t Start() {
    Prepare();
    return test::WaitForServer();
  }
};

void WaitUntilGone(pid_t process) {
  test::WaitFor("the server to end", [&] { return !test::Runs(process); });
  test::WaitFor("its files to go", [] { return test::FilesLeftBehind().empty(); });
}

TEST_CASE("a server that was started ahead is the one that a job gets, and ends with it") {
  Office office;
  const pid_t ahead = office.Start();
  const auto book = office.server.Bind(office.path);
  CHECK(ServerProcesses() == std::vector<pid_t>{ahead});
  book->ActiveSheet()->SetCell(1, 1, u"text");
  book->Close();
  WaitUntilGone(ahead);
  CHECK(ServerProcesses().empty());
}

TEST_CASE("a job that comes before its time starts the server itself, and only one") {
  Office office;
  office.Prepare(kMuchLater);
  const auto book = office.server.Bind(office.path);
  CHECK(ServerProcesses().size() == 1);
}

TEST_CASE("nothing starts before its time, nor once it is called off") {
  Office office;
  office.Prepare(kMuchLater);
  office.server.Dismiss();
  office.server.Dismiss();
  CHECK(ServerProcesses().empty());
  CHECK(test::FilesLeftBehind().empty());
}

/// From the word that no job comes to the server's end.
std::chrono::steady_clock::duration TimeOfEnd(Office& office, pid_t ahead) {
  const auto start = std::chrono::steady_clock::now();
  office.server.Dismiss();
  test::WaitFor("the server to end", [&] { return !test::Runs(ahead); });
  return std::chrono::steady_clock::now() - start;
}

TEST_CASE("a server that no job has taken ends within a second, from its first moment on") {
  for (const bool waits : {false, true}) {
    CAPTURE(waits);
    Office office;
    // The soonest of some: other work may keep the processor.
    auto soonest = std::chrono::steady_clock::duration::max();
    for (int start = 0; start < 3; ++start) {
      const pid_t ahead = office.Start();
      // With both sockets it answers, or is about to.
      if (waits) test::WaitForSockets(ahead);
      soonest = std::min(soonest, TimeOfEnd(office, ahead));
      WaitUntilGone(ahead);
    }
    CHECK(soonest < 1s);
  }
}

TEST_CASE("a program that ends takes the server that it has started ahead with it") {
  pid_t ahead = 0;
  {
    Office office;
    ahead = office.Start();
  }
  CHECK_FALSE(test::Runs(ahead));
  CHECK(test::FilesLeftBehind().empty());
}

TEST_CASE("a server that dies before the job costs the job nothing") {
  test::OfficeFixture fixture(1);
  fixture.office.Prepare(fixture.machine.programFolder + u"/Notelet.xlt", kAtOnce);
  kill(test::WaitForServer(), SIGKILL);
  CHECK(fixture.Print() == "PRINT");
  CHECK(fixture.Pages().size() == 2);
}

TEST_CASE("the print window starts the server, and closing it ends the server") {
  test::OfficeFixture fixture(1);
  fixture.window.Loaded();
  const pid_t ahead = test::WaitForServer();
  fixture.window->close.Press();
  WaitUntilGone(ahead);
}

TEST_CASE("what can't be started ahead is told by the job alone") {
  LoadedSpreadsheet server{u"/nowhere"};
  server.Prepare(u"/nowhere/Notelet.xlt", kAtOnce);
  CHECK_THROWS_AS(server.Bind(u"/nowhere/Notelet.xlt"), RunTimeError);
}

}  // namespace
}  // namespace tessara
