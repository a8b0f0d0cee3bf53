#include "base/conversion.h"
#include "base/run_time_error.h"
#include "base/skip_errors.h"
#include "machine/print_surface.h"
#include "printing/card_sheet.h"
#include "printing/print_copies.h"
#include "printing/print_window.h"
#include "printing/print_wrapped.h"

namespace tessara {

void PrintWindow::PrintFlatSheetDialog() {
  Machine& machine = app_.machine;
  try {
    const PrinterChoice choice = ChoosePrinter(machine);
    PrintCopies(machine, choice.copies, [this] { PrintFlatSheets(); });
  } catch (const RunTimeError&) {
    // Without anything to print with, no document has begun.
    SkipErrors([&machine] { machine.printer.Surface().DropDocument(); });
    TellCancelled(machine);
    app_.state.printing.cancelled = true;
  }
}

void PrintWindow::PrintFlatSheets() {
  PrintSurface& surface = app_.machine.printer.Surface();
  PrintFlatHeader();
  for (int item = 1; item <= cards.Count(); ++item) {
    if (cards.Item(item).checked) PrintFlatCard(item);
    surface.SetItalic(false);
  }
  app_.state.printing.flatLastY = 0;
  surface.EndDocument();
}

void PrintWindow::PrintFlatHeader() {
  const ProgramState& state = app_.state;
  PrintSurface& surface = app_.machine.printer.Surface();
  surface.SetCopies(1);
  surface.SetFontName(u"Arial");
  surface.SetFontSize(9);
  surface.PrintLine(u"TITLE: " + state.deck.title);
  surface.PrintLine(u"CREATED BY: " + state.deck.author);
  surface.PrintLine(u"DATE: " + state.deck.date);
  PrintBlock(u"DESCRIPTION: " + state.deck.description + Text(kLineBreak) + u"DECK TYPE: " +
             state.deck.typeName);
  surface.PrintLine(u"Total Cards: " + DecimalText(state.deck.cardCount));
  surface.PrintLine(u"");
}

/// The texts come from the row behind the card that the heading names.
void PrintWindow::PrintFlatCard(int item) {
  ProgramState& state = app_.state;
  PrintSurface& surface = app_.machine.printer.Surface();
  const auto row = static_cast<std::int16_t>(IntegerOf(cards.Item(item).text) + 1);
  surface.SetFontName(u"Arial");
  surface.SetFontSize(10);
  surface.SetBold(true);
  const double y = surface.CurrentY();
  surface.DrawLine(0, y, surface.PageWidth(), y);
  surface.PrintLine(u"");
  surface.PrintLine(u"Card #" + DecimalText(row - 1));
  surface.SetBold(false);
  PrintBlock(state.deck.Cell(row, kCardText));
  surface.SetItalic(true);
  state.deck.currentCard = static_cast<std::int16_t>(item);
  PrintBlock(GetCardText(Text(kBack), row));
}

/// A wrapped text and, below it, the line that its empty result makes.
void PrintWindow::PrintBlock(const Text& text) {
  PrintSurface& surface = app_.machine.printer.Surface();
  surface.PrintLine(PrintWrapped(text, surface, app_.state.printing.flatLastY));
}

}  // namespace tessara
