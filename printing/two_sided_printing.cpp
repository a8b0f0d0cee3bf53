#include "base/conversion.h"
#include "base/run_time_error.h"
#include "base/skip_errors.h"
#include "machine/message_box.h"
#include "machine/spreadsheet.h"
#include "printing/card_sheet.h"
#include "printing/print_copies.h"
#include "printing/print_window.h"

namespace tessara {

namespace {

void AskForPaper(MessageBoxes& messages, const Text& side) {
  const Text title = side == kFront ? u"PRINT FRONT" : u"PRINT BACK";
  messages.Show(u"Insert Sheet for " + side + u" Card printing", kOkOnly, title);
}

/// How the sheet is to be turned, for the page line of a front.
Text TurningMark(SheetTurn turn, const Text& side) {
  if (side == kBack) return {};
  return turn == SheetTurn::kOverTop ? u"VV" : u"^^";
}

void TellPrintingError(Machine& machine, const RunTimeError& error) {
  if (error.Number() == ErrorNumber::kObjectRequired) {
    machine.messages.Show(Text(kUnspecifiedError), kOkOnly, u"Error Printing Cards");
  } else {
    TellCancelled(machine);
  }
}

}  // namespace

void PrintWindow::PrintCardsDialog() {
  try {
    PrintCardCopies(ChoosePrinter(app_.machine));
  } catch (const RunTimeError& error) {
    app_.state.printing.cancelled = true;
    TellPrintingError(app_.machine, error);
  }
}

void PrintWindow::PrintCardCopies(const PrinterChoice& choice) {
  SpreadsheetServer& server = app_.machine.spreadsheet;
  server.SetDestination(choice.destination);
  try {
    // Nothing clears the cells between a copy's backs and the next copy's fronts.
    PrintCopies(app_.machine, choice.copies, [this] {
      PrintCards(Text(kFront));
      CardSheet(*job_.JobSheet()).ClearCardCells();
      PrintCards(Text(kBack));
    });
  } catch (const RunTimeError&) {
    // The sheets that the server has taken stay printed. The first error is the one to tell.
    SkipErrors([&server] { server.FinishDestination(); });
    throw;
  }
  server.FinishDestination();
}

SheetTurn PrintWindow::Turn() const {
  return flipPrint.Ticked() ? SheetTurn::kOverTop : SheetTurn::kOverSide;
}

void PrintWindow::PrintCards(const Text& side) {
  AskForPaper(app_.machine.messages, side);
  const Text mark = TurningMark(Turn(), side);
  Worksheet& worksheet = *job_.JobSheet();
  CardSheet sheet(worksheet);
  std::int16_t position = kFirstSlot;
  std::int16_t page = 1;
  const int items = cards.Count();
  for (int item = 1; item <= items; ++item) {
    if (!cards.Item(item).checked) continue;
    if (position > kLastSlot) {
      position = kFirstSlot;
      sheet.WritePageLine(page++, side, mark);
      worksheet.PrintOut();
      sheet.ClearCardCells();
    }
    const std::int16_t row = IntegerOf(cards.Item(item).text);
    sheet.PlaceCardText(GetCardText(side, row), position++, side, Turn());
  }
  // A sheet that is not full says that it is the last one.
  if (position <= kLastSlot)
    sheet.PlaceCardText(u"ALL SELECTED CARDS PRINTED", position, side, Turn());
  sheet.WritePageLine(page, side, mark);
  worksheet.PrintOut();
}

}  // namespace tessara
