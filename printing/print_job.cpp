// A job from the press of the print button to the box at its end.

#include "deck/deck_name.h"
#include "platform/message_box.h"
#include "platform/run_time_error.h"
#include "printing/PrintCard.h"
#include "printing/print_copies.h"

namespace tessara {

bool PrintCard::RunJob() {
  return Check1.Ticked() ? RunFlatJob() : RunCardJob();
}

bool PrintCard::RunFlatJob() {
  PrintFlatSheetDialog();
  // A cancel stays set: the next flat job ends here too, until a card job clears it.
  if (app_.state.PrintCancelled) return false;
  AnnounceEnd();
  return true;
}

bool PrintCard::RunCardJob() {
  try {
    job_.Open();
    PrintCardsDialog();
    job_.Close();
  } catch (const RunTimeError& error) {
    ReportJobFailure(error);
    return false;
  }
  if (!app_.state.PrintCancelled) AnnounceEnd();
  app_.state.PrintCancelled = false;
  return true;
}

void PrintCard::AnnounceEnd() {
  app_.machine.messages.Show(DeckNameOf(app_.state.DeckFilePath) + u" has finished printing.",
                             kInformationIcon, u"PRINT");
}

void PrintCard::ReportJobFailure(const RunTimeError& error) {
  const bool notFound = error.Number() == ErrorNumber::kAutomationClassNotFound;
  Command1[kPrintButton].SetEnabled(false);
  app_.machine.messages.Show(notFound ? u"Printing requires Excel 97." : Text(kUnspecifiedError),
                             kStopIcon, u"Error Printing Cards");
}

}  // namespace tessara
