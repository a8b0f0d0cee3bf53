#pragma once

#include <memory>
#include <string>
#include <vector>

#include "deck/app_context.h"
#include "forms/window.h"
#include "platform/posix/loaded_spreadsheet.h"
#include "printing/PrintCard.h"
#include "printing/spreadsheet_job.h"
#include "tests/printing/printed_pdf.h"
#include "tests/support/fake_machine.h"
#include "tests/support/headless_renderer.h"
#include "tests/support/recording_print_surface.h"
#include "tests/support/scratch_folder.h"
#include "tests/support/test_frame.h"

namespace tessara::test {

/// A print window on the real spreadsheet server. Card 1 reads "F1" and "B1", and so on.
class OfficeDesk {
 public:
  ScratchFolder folder;
  LoadedSpreadsheet server{FromUtf8(PROGRAM_FOLDER)};
  FakeMachine fakes;
  RecordingPrintSurface surface;
  Machine machine = WithServer();
  WindowSystem windows{fakes.messages, machine.codePage};
  HeadlessRenderer renderer;
  ProgramState state;
  TestFrame frame;
  AppContext app{windows, machine, state, frame};
  SpreadsheetJob job{machine};
  WindowSlot deckSlot{windows, [this] {
                        return std::make_unique<Form>(windows, "frmMain", FormKind::kChild, u"");
                      }};
  WindowSlot slot{windows,
                  [this] { return std::make_unique<PrintCard>(app, job, Window<Form>(deckSlot)); }};
  Window<PrintCard> window{slot};

  explicit OfficeDesk(int cards) {
    windows.SetRenderer(renderer);
    machine.programFolder = FromUtf8(PROGRAM_FOLDER);
    state.CanPrintCards = true;
    state.CardCount = static_cast<std::int16_t>(cards);
    for (int row = 1; row <= cards; ++row) {
      SetCard(row, u"F" + DecimalText(row), u"B" + DecimalText(row));
    }
  }

  void SetCard(int row, const Text& front, const Text& back) {
    state.CardGrid.Set(row, kCardText, front);
    state.CardGrid.Set(row, kBackText, back);
  }
  [[nodiscard]] std::string PdfPath() const { return (folder / "cards.pdf").string(); }

  /// Prints all cards into the PDF file, or into another, and tells the title of the last box.
  std::string Print(bool flip = false, int copies = 1, std::string pdfPath = {}) {
    if (pdfPath.empty()) pdfPath = PdfPath();
    PrintCard& opened = window.Loaded();
    opened.SelectAll();
    opened.Check2.SetTicked(flip);
    opened.Command1[1].SetEnabled(true);
    fakes.dialogs.printers.emplace_back(PrinterChoice{{u"", FromUtf8(pdfPath)}, copies});
    for (int copy = 1; copy < copies; ++copy) fakes.messages.answers.push_back(MessageAnswer::kYes);
    opened.Command1[1].Press();
    return ToUtf8(fakes.messages.shown.back().title);
  }
  [[nodiscard]] std::vector<PrintedPage> Pages() const { return ReadPdf(PdfPath()); }

 private:
  Machine WithServer() {
    fakes.spreadsheet = &server;
    fakes.printer = &surface;
    return fakes.Get();
  }
};

}  // namespace tessara::test
