#pragma once

#include <memory>
#include <string>

#include "base/utf8.h"
#include "deck/app_context.h"
#include "forms/window.h"
#include "printing/print_window.h"
#include "printing/spreadsheet_job.h"
#include "tests/support/fakes/fake_machine.h"
#include "tests/support/fakes/headless_renderer.h"
#include "tests/support/fakes/recording_print_surface.h"
#include "tests/support/fakes/recording_spreadsheet.h"
#include "tests/support/fakes/test_frame.h"

namespace tessara::test {

/// A print window on a recording spreadsheet server and a recording print surface. The record of
/// each also has the message boxes, as "Box TITLE".
class PrintFixture {
 public:
  FakeMachine fakes;
  RecordingSpreadsheet server;
  RecordingPrintSurface surface;
  FakePrinter printer{surface};
  Machine machine = WithRecorders();
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

  explicit PrintFixture(int cards = 3) {
    windows.SetRenderer(renderer);
    state.printing.canPrintCards = true;
    FillDeck(cards);
    deckSlot.Instance().Show();
    fakes.messages.whileShown = [this](const FakeMessages::Shown& box) {
      const std::string line = "Box " + ToUtf8(box.title);
      server.record.calls.push_back(line);
      surface.record.calls.push_back(line);
    };
  }

  /// The window, loaded.
  PrintWindow& Open() const { return window.Loaded(); }
  /// The window with its first items ticked.
  PrintWindow& OpenTicked(int ticked) {
    PrintWindow& opened = Open();
    for (int item = 1; item <= ticked; ++item) Tick(item);
    return opened;
  }
  void Tick(int item) const { Open().cards.UserClick(item, ListView::HitPart::kCheckBox); }
  /// What the next printer dialog answers: a PDF file.
  void ChoosePrinter(int copies = 1) {
    fakes.dialogs.printers.emplace_back(PrinterChoice{{u"", u"/home/me/cards.pdf"}, copies});
  }
  void CancelPrinter() { fakes.dialogs.printers.emplace_back(std::nullopt); }

 private:
  Machine WithRecorders() {
    fakes.spreadsheet = &server;
    fakes.printer = &printer;
    return fakes.Get();
  }
  void FillDeck(int cards) {
    state.deck.cardCount = static_cast<std::int16_t>(cards);
    for (int row = 1; row <= cards; ++row) {
      state.deck.cardGrid.Set(row, kCardType, u"E");
      state.deck.cardGrid.Set(row, kCardText, u"front " + DecimalText(row));
      state.deck.cardGrid.Set(row, kBackText, u"back " + DecimalText(row));
    }
    state.deck.filePath = u"/home/me/capitals.tsr";
  }
};

}  // namespace tessara::test
