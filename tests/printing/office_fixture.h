#pragma once

#include <memory>
#include <string>
#include <vector>

#include "adapters/libreoffice/loader/loaded_spreadsheet.h"
#include "base/utf8.h"
#include "deck/app_context.h"
#include "forms/window.h"
#include "printing/print_window.h"
#include "printing/spreadsheet_job.h"
#include "tests/printing/printed_pdf.h"
#include "tests/printing/watched_server.h"
#include "tests/support/fakes/fake_machine.h"
#include "tests/support/fakes/headless_renderer.h"
#include "tests/support/fakes/recording_print_surface.h"
#include "tests/support/fakes/test_frame.h"
#include "tests/support/scratch_folder.h"

namespace tessara::test {

/// What a fixture uses in place of a dialog that is answered beforehand and a recording surface.
struct Devices {
  Dialogs* dialogs = nullptr;
  Printer* printer = nullptr;
};

/// A print window on the real spreadsheet server. Card 1 reads "F1" and "B1", and so on.
class OfficeFixture {
 public:
  ScratchFolder folder;
  LoadedSpreadsheet office{FromUtf8(PROGRAM_FOLDER)};
  WatchedServer server{office};
  FakeMachine fakes;
  RecordingPrintSurface surface;
  FakePrinter printer{surface};
  Machine machine;
  WindowSystem windows{fakes.messages};
  HeadlessRenderer renderer;
  ProgramState state;
  TestFrame frame;
  UnsavedDeck unsaved{state, machine};
  AppContext app{windows, machine, state, frame, unsaved};
  SpreadsheetJob job{machine};
  WindowSlot<Form> deckSlot{
      windows,
      [this] { return std::make_unique<Form>(windows, "frmMain", FormKind::kChild, u""); }};
  WindowSlot<PrintWindow> slot{
      windows, [this] { return std::make_unique<PrintWindow>(app, job, Window<Form>(deckSlot)); }};
  Window<PrintWindow> window{slot};

  explicit OfficeFixture(int cards, const Devices& devices = {}) : machine(WithServer(devices)) {
    windows.SetRenderer(renderer);
    machine.programFolder = FromUtf8(PROGRAM_FOLDER);
    state.printing.canPrintCards = true;
    state.deck.cardCount = static_cast<std::int16_t>(cards);
    for (int row = 1; row <= cards; ++row) {
      SetCard(row, u"F" + DecimalText(row), u"B" + DecimalText(row));
    }
  }

  void SetCard(int row, const Text& front, const Text& back) {
    state.deck.cardGrid.Set(row, kCardText, front);
    state.deck.cardGrid.Set(row, kBackText, back);
  }
  [[nodiscard]] std::string PdfPath() const { return (folder / "cards.pdf").string(); }

  /// Prints all cards into the PDF file, or into another, and tells the title of the last box.
  std::string Print(bool flip = false, int copies = 1, std::string pdfPath = {}) {
    if (pdfPath.empty()) pdfPath = PdfPath();
    fakes.dialogs.printers.emplace_back(PrinterChoice{{u"", FromUtf8(pdfPath)}, copies});
    return PressPrint(flip ? Mode::kFlip : Mode::kCards, copies);
  }

  enum class Mode { kCards, kFlip, kFlat };
  /// Prints all cards to where the dialog says, with a Yes to each copy.
  std::string PressPrint(Mode mode, int copies = 1) {
    PrintWindow& opened = window.Loaded();
    opened.SelectAll();
    opened.flatSheet.SetTicked(mode == Mode::kFlat);
    opened.flipPrint.SetTicked(mode == Mode::kFlip);
    opened.print.SetEnabled(true);
    for (int copy = 1; copy < copies; ++copy) fakes.messages.answers.push_back(MessageAnswer::kYes);
    opened.print.Press();
    return ToUtf8(fakes.messages.shown.back().title);
  }
  [[nodiscard]] std::vector<PrintedPage> Pages() const { return ReadPdf(PdfPath()); }

 private:
  Machine WithServer(const Devices& devices) {
    fakes.spreadsheet = &server;
    fakes.printer = &printer;
    if (devices.printer != nullptr) fakes.printer = devices.printer;
    if (devices.dialogs != nullptr) fakes.chooser = devices.dialogs;
    return fakes.Get();
  }
};

}  // namespace tessara::test
