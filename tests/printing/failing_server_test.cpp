#include <chrono>
#include <csignal>
#include <doctest/doctest.h>
#include <functional>
#include <thread>
#include <vector>

#include "base/run_time_error.h"
#include "base/utf8.h"
#include "tests/printing/office_fixture.h"
#include "tests/printing/server_processes.h"

namespace tessara {
namespace {

using test::OfficeFixture;
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
};

void SignalServers(int signal) {
  for (const pid_t process : ServerProcesses()) kill(process, signal);
}

void CheckRefused(const std::function<void()>& operation) {
  try {
    operation();
    FAIL("no error");
  } catch (const RunTimeError& error) {
    CHECK(error.Number() == ErrorNumber::kAutomationError);
  }
}

TEST_CASE("a server that was killed raises an error when it is asked and closes in silence") {
  OpenBook open;
  SignalServers(SIGKILL);
  CheckRefused([&] { open.sheet->PrintOut(); });
  CheckRefused([&] { open.book->ActiveSheet(); });
  open.book->Close();
  test::WaitForServersToEnd();
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

TEST_CASE("a job whose server dies before any operation ends as told, and the next one prints") {
  struct Case {
    std::string operation;
    std::string title;
  };
  const Case cases[] = {
      {"active sheet", "Error Printing Cards"},
      {"prompt switch", "Cancel Printing"},
      {"font name", "Cancel Printing"},
      {"font size", "Cancel Printing"},
      {"cell value", "Cancel Printing"},
      {"print", "Cancel Printing"},
      {"close", "PRINT"},
  };
  OfficeFixture fixture(1);
  for (const Case& c : cases) {
    CAPTURE(c.operation);
    fixture.server.before = [&](const std::string& operation) {
      if (operation == c.operation) SignalServers(SIGKILL);
    };
    CHECK(fixture.Print() == c.title);
    test::WaitForServersToEnd();
  }
  fixture.server.before = [](const std::string&) {};
  CHECK(fixture.Print() == "PRINT");
  CHECK(fixture.Pages().size() == 2);
  CHECK(test::FilesLeftBehind().empty());
}

/// The operations that ask a server something, each on a workbook of its own.
struct HungOperations {
  LoadedSpreadsheet server{FromUtf8(PROGRAM_FOLDER)};
  std::shared_ptr<Workbook> asked = Open();
  std::shared_ptr<Workbook> printed = Open();
  std::shared_ptr<Workbook> closed = Open();
  std::shared_ptr<Worksheet> printedSheet = printed->ActiveSheet();

  std::shared_ptr<Workbook> Open() { return server.Bind(FromUtf8(PROGRAM_FOLDER "/Notelet.xlt")); }
};

TEST_CASE(
    "a server that hangs is ended within 30 seconds, whatever it was asked, and a job cancelled") {
  {
    HungOperations open;
    const std::function<void()> operations[] = {
        [&] { CheckRefused([&] { open.Open(); }); },
        [&] { CheckRefused([&] { open.asked->ActiveSheet(); }); },
        [&] { CheckRefused([&] { open.printedSheet->PrintOut(); }); },
        [&] { open.closed->Close(); },
    };
    OfficeFixture fixture(1);
    // All at once, and a whole job beside them, so that they share the wait.
    std::vector<std::jthread> waiting;
    auto start = std::chrono::steady_clock::now();
    fixture.fakes.messages.whileShown = [&](const test::FakeMessages::Shown& box) {
      if (box.title != u"PRINT BACK") return;
      SignalServers(SIGSTOP);
      start = std::chrono::steady_clock::now();
      for (const auto& operation : operations) waiting.emplace_back(operation);
    };
    CHECK(fixture.Print() == "Cancel Printing");
    waiting.clear();
    CHECK(std::chrono::steady_clock::now() - start < kLongest);
    CHECK(fixture.fakes.messages.shown.back().text == u"Printing was cancelled");
    fixture.fakes.messages.whileShown = nullptr;
    CHECK(fixture.Print() == "PRINT");
  }
  test::WaitForServersToEnd();
  CHECK(test::FilesLeftBehind().empty());
}

TEST_CASE("who binds a server that hangs at its start ahead is free within 30 seconds too") {
  {
    LoadedSpreadsheet server(FromUtf8(PROGRAM_FOLDER));
    const Text templatePath = FromUtf8(PROGRAM_FOLDER "/Notelet.xlt");
    server.Prepare(templatePath, std::chrono::milliseconds(0));
    while (ServerProcesses().empty()) std::this_thread::yield();
    SignalServers(SIGSTOP);
    const auto start = std::chrono::steady_clock::now();
    CheckRefused([&] { server.Bind(templatePath); });
    CHECK(std::chrono::steady_clock::now() - start < kLongest);
  }
  test::WaitForServersToEnd();
  CHECK(test::FilesLeftBehind().empty());
}

TEST_CASE("the sheets before a server's death stay in the PDF file") {
  OfficeFixture fixture(19);
  fixture.SetCard(19, u"F19\r\nbelow", u"B19");
  fixture.fakes.messages.whileShown = [](const test::FakeMessages::Shown& box) {
    if (box.title == u"PRINT BACK") SignalServers(SIGKILL);
  };
  CHECK(fixture.Print() == "Cancel Printing");
  const std::vector<test::PrintedPage> pages = fixture.Pages();
  REQUIRE(pages.size() == 3);
  CHECK(pages[0].Has("F8"));
  CHECK(pages[1].Has("F16"));
  CHECK(pages[2].Has("F19 below"));
  CHECK_FALSE(pages[2].Has("F9"));
  test::WaitForServersToEnd();
}

TEST_CASE("a sheet that the server refuses is not in the PDF file, and those before it are") {
  OpenBook open;
  open.sheet->SetCell(1, 1, u"taken");
  open.sheet->PrintOut();
  open.sheet->SetCell(1, 1, u"refused");
  open.sheet->SetFontName(u"no range", u"Arial");
  CheckRefused([&] { open.sheet->PrintOut(); });
  open.server.FinishDestination();
  const auto pages = test::ReadPdf((open.folder / "cards.pdf").string());
  REQUIRE(pages.size() == 1);
  CHECK(pages.front().Has("taken"));
}

TEST_CASE("more sheets than the server keeps at once are in the file, in the order of printing") {
  constexpr int kSheets = 203;
  OpenBook open;
  for (int sheet = 1; sheet <= kSheets; ++sheet) {
    open.sheet->SetCell(1, 1, u"sheet" + DecimalText(sheet));
    open.sheet->PrintOut();
  }
  open.server.FinishDestination();
  const auto pages = test::ReadPdf((open.folder / "cards.pdf").string());
  REQUIRE(pages.size() == kSheets);
  for (int sheet = 1; sheet <= kSheets; ++sheet) {
    CHECK(pages[static_cast<std::size_t>(sheet - 1)].Has("sheet" + std::to_string(sheet)));
  }
}

/// For its life the system forgets how a child has ended: some starters of programs ask for that
/// themselves, and what they start inherits it.
class ChildrenLeftToSystem {
 public:
  explicit ChildrenLeftToSystem(bool left) { std::signal(SIGCHLD, left ? SIG_IGN : SIG_DFL); }
  ChildrenLeftToSystem(const ChildrenLeftToSystem&) = delete;
  ChildrenLeftToSystem& operator=(const ChildrenLeftToSystem&) = delete;
  ~ChildrenLeftToSystem() { std::signal(SIGCHLD, SIG_DFL); }
};

TEST_CASE("a server that dies or hangs while it starts fails the job within 30 seconds") {
  struct Case {
    int signal;
    bool leftToSystem;
  };
  for (const Case& c : {Case{SIGKILL, false}, Case{SIGKILL, true}, Case{SIGSTOP, false}}) {
    CAPTURE(c.signal);
    CAPTURE(c.leftToSystem);
    const ChildrenLeftToSystem children(c.leftToSystem);
    OfficeFixture fixture(1);
    std::chrono::steady_clock::time_point start;
    std::thread hand([&] {
      kill(test::WaitForServer(), c.signal);
      start = std::chrono::steady_clock::now();
    });
    const std::string title = fixture.Print();
    hand.join();
    CHECK(title == "Error Printing Cards");
    CHECK(fixture.fakes.messages.shown.back().text ==
          u"An unspecified printing error has occured. Ensure that the printer is ready.");
    CHECK_FALSE(fixture.window->print.Enabled());
    CHECK(std::chrono::steady_clock::now() - start < kLongest);
    test::WaitForServersToEnd();
    CHECK(test::FilesLeftBehind().empty());
  }
}

}  // namespace
}  // namespace tessara
