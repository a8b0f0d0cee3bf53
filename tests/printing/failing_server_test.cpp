#include <chrono>
#include <csignal>
#include <doctest/doctest.h>
#include <filesystem>
#include <functional>
#include <thread>

#include "platform/run_time_error.h"
#include "tests/printing/office_desk.h"
#include "tests/printing/server_processes.h"

namespace tessara {
namespace {

using test::OfficeDesk;
using test::ServerProcesses;

/// In how short a time the program must be usable again, whatever the server does.
constexpr std::chrono::seconds kLongest{30};

/// A workbook of the real server, open.
struct OpenBook {
  test::ScratchFolder folder;
  LoadedSpreadsheet server{FromUtf8(PROGRAM_FOLDER)};
  std::shared_ptr<Workbook> book = server.Bind(FromUtf8(PROGRAM_FOLDER "/Notelet.xlt"));
  std::shared_ptr<Worksheet> sheet = book->ActiveSheet();

  OpenBook() { server.SetDestination({u"", FromUtf8((folder / "cards.pdf").string())}); }
  void Kill() const {
    for (const pid_t process : ServerProcesses()) kill(process, SIGKILL);
  }
};

void CheckRefused(const std::function<void()>& operation) {
  try {
    operation();
    FAIL("no error");
  } catch (const RunTimeError& error) {
    CHECK(error.Number() == ErrorNumber::kAutomationError);
  }
}

TEST_CASE("a server that was killed raises an error in each operation and closes in silence") {
  OpenBook open;
  open.Kill();
  CheckRefused([&] { open.sheet->SetCell(1, 1, u"x"); });
  CheckRefused([&] { open.sheet->PrintOut(); });
  CheckRefused([&] { open.book->ActiveSheet(); });
  open.book->Close();
  CHECK(ServerProcesses().empty());
  CHECK(test::FilesLeftBehind().empty());
}

TEST_CASE("the sheet of a closed workbook refuses everything") {
  OpenBook open;
  open.book->Close();
  open.book->Close();
  CheckRefused([&] { open.sheet->SetFontName(u"A1:C7", u"Arial"); });
  CheckRefused([&] { open.sheet->SetFontSize(u"C6", 10); });
  CheckRefused([&] { open.sheet->SetCell(1, 1, u"x"); });
  CheckRefused([&] { open.sheet->PrintOut(); });
  CheckRefused([&] { open.book->ActiveSheet(); });
}

TEST_CASE("a range that the sheet does not have is refused") {
  OpenBook open;
  open.sheet->SetFontName(u"no range", u"Arial");
  CheckRefused([&] { open.sheet->PrintOut(); });
  CheckRefused([&] { open.sheet->SetCell(0, 1, u"x"); });
}

/// Does something to the server while a box of the title is up, prints, and checks that it ends
/// as a cancelled job; the next job must print.
void CheckJobSurvives(const Text& title, int signal) {
  OfficeDesk desk(9);
  auto start = std::chrono::steady_clock::now();
  desk.fakes.messages.whileShown = [&](const test::FakeMessages::Shown& box) {
    if (box.title != title) return;
    for (const pid_t process : ServerProcesses()) kill(process, signal);
    start = std::chrono::steady_clock::now();
  };
  CHECK(desk.Print() == "Cancel Printing");
  CHECK(std::chrono::steady_clock::now() - start < kLongest);
  CHECK(desk.fakes.messages.shown.back().text == u"Printing was cancelled");
  CHECK(ServerProcesses().empty());
  desk.fakes.messages.whileShown = nullptr;
  CHECK(desk.Print() == "PRINT");
  CHECK(desk.Pages().size() == 4);
}

TEST_CASE("a job whose server dies before a pass is cancelled, and the next one prints") {
  for (const Text title : {u"PRINT FRONT", u"PRINT BACK"}) {
    CAPTURE(ToUtf8(title));
    CheckJobSurvives(title, SIGKILL);
  }
}

TEST_CASE("a job whose server hangs is cancelled within 30 seconds, and the next one prints") {
  CheckJobSurvives(u"PRINT BACK", SIGSTOP);
}

TEST_CASE("the sheets before a server's death stay in the PDF file") {
  OfficeDesk desk(3);
  desk.fakes.messages.whileShown = [](const test::FakeMessages::Shown& box) {
    if (box.title != u"PRINT BACK") return;
    for (const pid_t process : ServerProcesses()) kill(process, SIGKILL);
  };
  desk.Print();
  REQUIRE(desk.Pages().size() == 1);
  CHECK(desk.Pages().front().Has("F3"));
}

TEST_CASE("a server that hangs while it starts fails the job within 30 seconds") {
  OfficeDesk desk(1);
  std::chrono::steady_clock::time_point start;
  std::thread stopper([&start] {
    kill(test::WaitForServer(), SIGSTOP);
    start = std::chrono::steady_clock::now();
  });
  const std::string title = desk.Print();
  stopper.join();
  CHECK(title == "Error Printing Cards");
  CHECK(std::chrono::steady_clock::now() - start < kLongest);
  CHECK(ServerProcesses().empty());
  CHECK(test::FilesLeftBehind().empty());
}

TEST_CASE("a PDF file that can't be written cancels the job, told once") {
  const test::ScratchFolder folder;
  for (const std::string& path : {(folder / "none/cards.pdf").string(), std::string("/dev/full"),
                                  std::filesystem::temp_directory_path().string()}) {
    CAPTURE(path);
    OfficeDesk desk(1);
    CHECK(desk.Print(false, 1, path) == "Cancel Printing");
    CHECK(desk.Print() == "PRINT");
  }
}

}  // namespace
}  // namespace tessara
