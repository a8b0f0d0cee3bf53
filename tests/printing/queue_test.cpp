#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <doctest/doctest.h>
#include <filesystem>
#include <functional>

#include "adapters/qt/devices/lazy_print_surface.h"
#include "adapters/qt/devices/qt_dialogs.h"
#include "adapters/qt/text/qt_text.h"
#include "base/utf8.h"
#include "tests/printing/office_fixture.h"
#include "tests/printing/print_server.h"
#include "tests/printing/server_processes.h"
#include "tests/printing/sheet_checks.h"
#include "tests/support/contracts/dialogs_contract.h"
#include "tests/support/contracts/print_queue_contract.h"

namespace tessara {
namespace {

using test::OfficeFixture;
using test::PrintedJob;
using test::PrintedPage;
using test::PrintServer;
using Mode = OfficeFixture::Mode;

/// The print window with the real dialog, server and surface.
struct PaperFixture {
  PrintModuleSource printing{FromUtf8(PROGRAM_FOLDER)};
  QtDialogs dialogs{printing};
  LazyPrintSurface printer{printing};
  OfficeFixture office;
  PrintServer& queues = PrintServer::Instance();

  explicit PaperFixture(int cards) : office(cards, {&dialogs, &printer}) {}

  /// What the next printer dialog is answered: a queue or a file.
  static void Choose(const PrinterChoice& choice) {
    Answer([=](QPrintDialog& dialog) {
      auto* printers = dialog.findChild<QComboBox*>("printers");
      if (choice.destination.printer.empty()) {
        printers->setCurrentIndex(printers->count() - 1);
        dialog.findChild<QLineEdit*>("filename")->setText(ToQString(choice.destination.pdfFile));
      } else {
        printers->setCurrentText(ToQString(choice.destination.printer));
        dialog.findChild<QSpinBox*>("copies")->setValue(choice.copies);
      }
    });
  }
  static void Cancel() {
    QTimer::singleShot(0,
                       [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });
  }
  /// Chooses the queue and the copies in the dialog, and prints all cards.
  std::string Print(const char* queue, Mode mode, int copies = 1) {
    Choose({{FromUtf8(queue), u""}, copies});
    return office.PressPrint(mode, copies);
  }
  std::string PrintToFile(const std::string& path, Mode mode) {
    Choose({{u"", FromUtf8(path)}, 1});
    return office.PressPrint(mode);
  }

 private:
  static void Answer(const std::function<void(QPrintDialog&)>& fill) {
    QTimer::singleShot(0, [fill] {
      auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      REQUIRE(dialog != nullptr);
      fill(*dialog);
      auto* buttons = dialog->findChild<QDialogButtonBox*>();
      QTest::mouseClick(buttons->button(QDialogButtonBox::Ok), Qt::LeftButton);
    });
  }
};

std::vector<PrintedPage> PagesOf(const std::vector<PrintedJob>& jobs) {
  std::vector<PrintedPage> pages;
  for (const PrintedJob& job : jobs) pages.insert(pages.end(), job.pages.begin(), job.pages.end());
  return pages;
}

TEST_CASE("what is printed on goes to a queue as the program counts on") {
  PaperFixture fixture(1);
  const auto printed = [&](int count) {
    std::vector<int> pages;
    for (const PrintedJob& job :
         fixture.queues.TakeJobs(PrintServer::kQueue, static_cast<std::size_t>(count))) {
      pages.push_back(static_cast<int>(job.pages.size()));
    }
    return pages;
  };
  test::CheckPrintQueueContract(fixture.printer.Surface(), FromUtf8(PrintServer::kQueue), printed);
}

TEST_CASE("the printer dialog keeps to what the program counts on") {
  PaperFixture fixture(1);
  const test::ScratchFolder folder;
  const auto answer = [](const std::optional<PrinterChoice>& choice) {
    choice ? PaperFixture::Choose(*choice) : PaperFixture::Cancel();
  };
  test::CheckPrinterDialogContract(fixture.dialogs, answer, FromUtf8(PrintServer::kQueue),
                                   folder.TextPath(u"cards.pdf"));
}

TEST_CASE("card sheets go to the queue chosen in the dialog, in the order of their printing") {
  PaperFixture fixture(17);
  REQUIRE(fixture.Print(PrintServer::kQueue, Mode::kFlip) == "PRINT");
  const std::vector<PrintedPage> pages = PagesOf(fixture.queues.TakeJobs(PrintServer::kQueue, 6));
  test::CheckSheets(pages, 17, true);
  const char* pageLines[] = {"Page 1 - Front VV", "Page 2 - Front VV", "Page 3 - Front VV",
                             "Page 1 - Back",     "Page 2 - Back",     "Page 3 - Back"};
  for (std::size_t page = 0; page < std::size(pageLines); ++page) {
    CHECK(pages[page].Has(pageLines[page]));
  }
}

TEST_CASE("copies of card sheets are printed again, and the queue's own settings move no card") {
  PaperFixture fixture(3);
  REQUIRE(fixture.Print(PrintServer::kOtherQueue, Mode::kCards, 2) == "PRINT");
  const std::vector<PrintedJob> jobs = fixture.queues.TakeJobs(PrintServer::kOtherQueue, 4);
  for (const PrintedJob& job : jobs) {
    CHECK(job.copies == 1);
    CHECK(job.pages.size() == 1);
    for (const char* option : {"print-scaling=none", "sides=one-sided", "number-up=1"}) {
      INFO(job.options);
      CHECK(job.Has(option));
    }
    for (const char* name : {"fit-to-page", "mirror"}) {
      CHECK(job.options.find(name) == std::string::npos);
    }
  }
  CHECK(jobs[2].pages.front().Has("F3"));
  CHECK(jobs[3].pages.front().Has("B3"));
}

TEST_CASE("each copy of a listing is a job on the chosen queue's own paper") {
  PaperFixture fixture(40);
  fixture.office.state.deck.title = u"Numbers";
  REQUIRE(fixture.Print(PrintServer::kOtherQueue, Mode::kFlat, 2) == "PRINT");
  const std::vector<PrintedJob> jobs = fixture.queues.TakeJobs(PrintServer::kOtherQueue, 2);
  for (const PrintedJob& job : jobs) {
    CHECK(job.copies == 1);
    REQUIRE(job.pages.size() > 1);
    CHECK(job.pages[0].width == doctest::Approx(215.9).epsilon(0.01));
    CHECK(job.pages[0].Text().starts_with("TITLE: Numbers"));
    CHECK(job.pages.back().Has("Card #40"));
    CHECK(job.Has("number-up=4"));
  }
  // A heading stands above the texts of the card behind it.
  CHECK(jobs[0].pages[0].Has("Card #1 F2 B2 Card #2 F3 B3"));
}

TEST_CASE("settings that the user has named are chosen like a queue, and print on theirs") {
  PaperFixture fixture(3);
  REQUIRE(fixture.Print(PrintServer::kNamedSettings, Mode::kFlat) == "PRINT");
  CHECK(fixture.queues.TakeJobs(PrintServer::kQueue, 1).front().Has("number-up=2"));
  REQUIRE(fixture.Print(PrintServer::kNamedSettings, Mode::kCards) == "PRINT");
  test::CheckSheets(PagesOf(fixture.queues.TakeJobs(PrintServer::kQueue, 2)), 3, false);
}

TEST_CASE("a listing on its way to a queue makes no temporary file") {
  PaperFixture fixture(3);
  const QByteArray before = qgetenv("TMPDIR");
  qputenv("TMPDIR", "/nowhere");
  const std::string told = fixture.Print(PrintServer::kQueue, Mode::kFlat);
  before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
  CHECK(told == "PRINT");
  CHECK(fixture.queues.TakeJobs(PrintServer::kQueue, 1).front().pages.size() == 1);
}

TEST_CASE("queue and file can be chosen in turn") {
  PaperFixture fixture(3);
  for (const char* queue : {PrintServer::kQueue, PrintServer::kOtherQueue}) {
    CAPTURE(queue);
    REQUIRE(fixture.PrintToFile(fixture.office.PdfPath(), Mode::kFlat) == "PRINT");
    CHECK(fixture.office.Pages().size() == 1);
    std::filesystem::remove(fixture.office.PdfPath());
    REQUIRE(fixture.Print(queue, Mode::kFlat) == "PRINT");
    CHECK(fixture.queues.TakeJobs(queue, 1).front().pages.size() == 1);
    CHECK_FALSE(std::filesystem::exists(fixture.office.PdfPath()));
  }
}

TEST_CASE("a queue that takes no jobs cancels the job, and the next one prints elsewhere") {
  PaperFixture fixture(3);
  // The listing first: its cancel stays set until a card job has ended, and keeps that one silent.
  for (const Mode mode : {Mode::kFlat, Mode::kCards}) {
    CAPTURE(static_cast<int>(mode));
    CHECK(fixture.Print(PrintServer::kRefusingQueue, mode) == "Cancel Printing");
    CHECK(fixture.office.fakes.messages.shown.back().text == u"Printing was cancelled");
    CHECK(test::ServerProcesses().empty());
    CHECK(test::FilesLeftBehind().empty());
  }
  CHECK(fixture.Print(PrintServer::kQueue, Mode::kCards) == "PRINT");
  test::CheckSheets(PagesOf(fixture.queues.TakeJobs(PrintServer::kQueue, 2)), 3, false);
}

}  // namespace
}  // namespace tessara
