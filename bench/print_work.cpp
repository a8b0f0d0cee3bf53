// Prints 200 cards into a PDF file, as the print window does when its button is pressed, and tells
// how many milliseconds that took. The texts are "Front 1", "Back 1" and so on.
// "cards" presses it as soon as the window is there; "chosen" as late as somebody who first chooses
// the cards.
// usage: bench_print cards|chosen|listing FILE

#include <QApplication>
#include <chrono>
#include <cstdio>
#include <string>
#include <thread>

#include "adapters/qt/devices/lazy_print_surface.h"
#include "base/utf8.h"
#include "tests/printing/office_fixture.h"

using namespace tessara;

namespace {

constexpr int kCards = 200;
constexpr std::chrono::seconds kChoosing{4};

/// True where the job came to its end.
bool Print(test::OfficeFixture& fixture, const std::string& way, const std::string& file) {
  using Mode = test::OfficeFixture::Mode;
  fixture.fakes.dialogs.printers.emplace_back(PrinterChoice{{u"", FromUtf8(file)}, 1});
  return fixture.PressPrint(way == "listing" ? Mode::kFlat : Mode::kCards) == "PRINT";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  PrintModuleSource printing(FromUtf8(PROGRAM_FOLDER));
  LazyPrintSurface printer(printing);
  test::OfficeFixture fixture(kCards, {nullptr, &printer});
  for (int row = 1; row <= kCards; ++row) {
    fixture.SetCard(row, u"Front " + DecimalText(row), u"Back " + DecimalText(row));
  }
  fixture.window.Loaded();
  if (std::string(argv[1]) == "chosen") std::this_thread::sleep_for(kChoosing);
  const auto start = std::chrono::steady_clock::now();
  if (!Print(fixture, argv[1], argv[2])) return 1;
  const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
  std::printf("%.1f\n", took.count());
}
