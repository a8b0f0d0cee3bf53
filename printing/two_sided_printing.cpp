#include "platform/conversion.h"
#include "platform/message_box.h"
#include "platform/run_time_error.h"
#include "platform/skip_errors.h"
#include "platform/spreadsheet.h"
#include "printing/PrintCard.h"
#include "printing/card_sheet.h"
#include "printing/print_copies.h"

namespace tessara {

namespace {

void AskForPaper(MessageBoxes& messages, const Text& side) {
  const Text title = side == kFront ? u"PRINT FRONT" : u"PRINT BACK";
  messages.Show(u"Insert Sheet for " + side + u" Card printing", kOkOnly, title);
}

/// How the sheet is to be turned, for the page line of a front.
Text TurningMark(const CheckBox& Check2, const Text& side) {
  if (side == kBack) return {};
  return Check2.Ticked() ? u"VV" : u"^^";
}

void TellPrintingError(Machine& machine, const RunTimeError& error) {
  if (error.Number() == ErrorNumber::kObjectRequired) {
    machine.messages.Show(Text(kUnspecifiedError), kOkOnly, u"Error Printing Cards");
  } else {
    TellCancelled(machine);
  }
}

}  // namespace

void PrintCard::PrintCardsDialog() {
  try {
    PrintCardCopies(ChoosePrinter(app_.machine));
  } catch (const RunTimeError& error) {
    app_.state.PrintCancelled = true;
    TellPrintingError(app_.machine, error);
  }
}

void PrintCard::PrintCardCopies(const PrinterChoice& choice) {
  SpreadsheetServer& server = app_.machine.spreadsheet;
  server.SetDestination(choice.destination);
  try {
    // Nothing clears the cells between a copy's backs and the next copy's fronts.
    PrintCopies(app_.machine, choice.copies, [this] {
      PrintCards(Text(kFront));
      CardSheet(*job_.JobSheet(), Check2).ClearCardCells();
      PrintCards(Text(kBack));
    });
  } catch (const RunTimeError&) {
    // The sheets that the server has taken stay printed. The first error is the one to tell.
    SkipErrors([&server] { server.FinishDestination(); });
    throw;
  }
  server.FinishDestination();
}

void PrintCard::PrintCards(const Text& xSide) {
  AskForPaper(app_.machine.messages, xSide);
  const Text mark = TurningMark(Check2, xSide);
  Worksheet& worksheet = *job_.JobSheet();
  CardSheet sheet(worksheet, Check2);
  std::int16_t position = kFirstSlot;
  std::int16_t page = 1;
  const int items = ListView1.Count();
  for (int item = 1; item <= items; ++item) {
    if (!ListView1.Item(item).checked) continue;
    if (position > kLastSlot) {
      position = kFirstSlot;
      sheet.WritePageLine(page++, xSide, mark);
      worksheet.PrintOut();
      sheet.ClearCardCells();
    }
    const std::int16_t row = IntegerOf(ListView1.Item(item).text);
    sheet.PlaceCardText(GetCardText(xSide, row), position++, xSide);
  }
  // A sheet that is not full says that it is the last one.
  if (position <= kLastSlot) sheet.PlaceCardText(u"ALL SELECTED CARDS PRINTED", position, xSide);
  sheet.WritePageLine(page, xSide, mark);
  worksheet.PrintOut();
}

}  // namespace tessara
