#include "platform/conversion.h"
#include "platform/print_surface.h"
#include "platform/run_time_error.h"
#include "printing/PrintCard.h"
#include "printing/card_sheet.h"
#include "printing/print_copies.h"
#include "printing/print_wrapped.h"

namespace tessara {

void PrintCard::PrintFlatSheetDialog() {
  Machine& machine = app_.machine;
  try {
    const PrinterChoice choice = ChoosePrinter(machine);
    PrintCopies(machine, choice.copies, [this] { PrnFlatSheet(); });
  } catch (const RunTimeError&) {
    machine.printer.DropDocument();
    TellCancelled(machine);
    app_.state.PrintCancelled = true;
  }
}

void PrintCard::PrnFlatSheet() {
  PrintSurface& surface = app_.machine.printer;
  PrintFlatHeader();
  for (int item = 1; item <= ListView1.Count(); ++item) {
    if (ListView1.Item(item).checked) PrintFlatCard(item);
    surface.SetItalic(false);
  }
  app_.state.FlatLastY = 0;
  surface.EndDocument();
}

void PrintCard::PrintFlatHeader() {
  const ProgramState& state = app_.state;
  PrintSurface& surface = app_.machine.printer;
  surface.SetCopies(1);
  surface.SetFontName(u"Arial");
  surface.SetFontSize(9);
  surface.PrintLine(u"TITLE: " + state.DeckTitle);
  surface.PrintLine(u"CREATED BY: " + state.DeckAuthor);
  surface.PrintLine(u"DATE: " + state.DeckDate);
  PrintBlock(u"DESCRIPTION: " + state.DeckDescription + Text(kLineBreak) + u"DECK TYPE: " +
             state.DeckTypeName);
  surface.PrintLine(u"Total Cards: " + DecimalText(state.CardCount));
  surface.PrintLine(u"");
}

/// The texts come from the row behind the card that the heading names.
void PrintCard::PrintFlatCard(int item) {
  ProgramState& state = app_.state;
  PrintSurface& surface = app_.machine.printer;
  const auto row = static_cast<std::int16_t>(IntegerOf(ListView1.Item(item).text) + 1);
  surface.SetFontName(u"Arial");
  surface.SetFontSize(10);
  surface.SetBold(true);
  const double y = surface.CurrentY();
  surface.DrawLine(0, y, surface.PageWidth(), y);
  surface.PrintLine(u"");
  surface.PrintLine(u"Card #" + DecimalText(row - 1));
  surface.SetBold(false);
  PrintBlock(state.Cell(row, kCardText));
  surface.SetItalic(true);
  state.CurrentCard = static_cast<std::int16_t>(item);
  PrintBlock(GetCardText(Text(kBack), row));
}

/// A wrapped text and, below it, the line that its empty result makes.
void PrintCard::PrintBlock(const Text& text) {
  PrintSurface& surface = app_.machine.printer;
  surface.PrintLine(PrintWrapped(text, surface, app_.state.FlatLastY));
}

}  // namespace tessara
