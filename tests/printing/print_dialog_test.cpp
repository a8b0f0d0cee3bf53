#include <QApplication>
#include <QComboBox>
#include <QPrintDialog>
#include <QTimer>
#include <chrono>
#include <doctest/doctest.h>

#include "adapters/qt/devices/qt_desktop.h"
#include "adapters/qt/devices/qt_dialogs.h"
#include "base/run_time_error.h"
#include "base/utf8.h"
#include "machine/hourglass.h"
#include "tests/printing/office_fixture.h"
#include "tests/printing/print_server.h"
#include "tests/printing/silent_system.h"
#include "tests/support/environment_variable.h"

namespace tessara {
namespace {

/// What a printer dialog showed that was cancelled at once.
struct ShownDialog {
  QStringList printers;
  bool plainPointer = false;
};

ShownDialog CancelPrinterDialog(QtDialogs& dialogs) {
  ShownDialog shown;
  QTimer::singleShot(0, [&shown] {
    auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    REQUIRE(dialog != nullptr);
    const auto* printers = dialog->findChild<QComboBox*>("printers");
    for (int at = 0; at < printers->count(); ++at) shown.printers += printers->itemText(at);
    shown.plainPointer = QApplication::overrideCursor() == nullptr;
    dialog->reject();
  });
  CHECK_THROWS_AS(dialogs.AskPrinter(), RunTimeError);
  return shown;
}

/// The dialogs of one run of the program.
struct DialogFixture {
  PrintModuleSource printing{FromUtf8(PROGRAM_FOLDER)};
  QtDialogs dialogs{printing};
};

bool OffersQueue(const ShownDialog& shown) {
  return shown.printers.contains(test::PrintServer::kQueue);
}

TEST_CASE(
    "where the printing system never answers the dialog comes soon, with the PDF file alone") {
  DialogFixture fixture;
  {
    const test::ScratchFolder folder;
    const test::SilentSystem silent(folder / "socket");
    const test::EnvironmentVariable server("CUPS_SERVER", folder / "socket");
    const auto start = std::chrono::steady_clock::now();
    const ShownDialog shown = CancelPrinterDialog(fixture.dialogs);
    CHECK(std::chrono::steady_clock::now() - start < std::chrono::seconds(30));
    CHECK(shown.printers.size() == 1);
    CHECK(shown.printers.join(u' ').contains("PDF"));
  }
  // It has come back to life.
  CHECK(OffersQueue(CancelPrinterDialog(fixture.dialogs)));
}

TEST_CASE("a printing system that never answers keeps no cards from getting into a PDF file") {
  const test::ScratchFolder folder;
  const test::SilentSystem silent(folder / "socket");
  const test::EnvironmentVariable server("CUPS_SERVER", folder / "socket");
  test::OfficeFixture fixture(1);
  CHECK(fixture.Print() == "PRINT");
  CHECK(fixture.Pages().size() == 2);
}

TEST_CASE(
    "while the printer dialog is open the pointer is plain, and then the wait pointer again") {
  DialogFixture fixture;
  QtDesktop desktop(nullptr);
  const Hourglass waiting(desktop);
  const ShownDialog shown = CancelPrinterDialog(fixture.dialogs);
  CHECK(OffersQueue(shown));
  CHECK(shown.plainPointer);
  REQUIRE(QApplication::overrideCursor() != nullptr);
  CHECK(QApplication::overrideCursor()->shape() == Qt::WaitCursor);
}

}  // namespace
}  // namespace tessara
