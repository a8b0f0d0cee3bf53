// A job from the press of the print button to the box at its end.

#include "base/run_time_error.h"
#include "deck/file/deck_path.h"
#include "machine/hourglass.h"
#include "machine/message_box.h"
#include "printing/print_copies.h"
#include "printing/print_window.h"

namespace tessara {

bool PrintWindow::RunJob() {
  const Hourglass waiting(app_.machine.desktop);
  return flatSheet.Ticked() ? RunFlatJob() : RunCardJob();
}

bool PrintWindow::RunFlatJob() {
  PrintFlatSheetDialog();
  // A cancel stays set: the next flat job ends here too, until a card job clears it.
  if (app_.state.printing.cancelled) return false;
  AnnounceEnd();
  return true;
}

bool PrintWindow::RunCardJob() {
  try {
    job_.Open();
    PrintCardsDialog();
    job_.Close();
  } catch (const RunTimeError& error) {
    ReportJobFailure(error);
    return false;
  }
  if (!app_.state.printing.cancelled) AnnounceEnd();
  app_.state.printing.cancelled = false;
  return true;
}

void PrintWindow::AnnounceEnd() {
  app_.machine.messages.Show(DeckNameOf(app_.state.deck.filePath) + u" has finished printing.",
                             kInformationIcon, Text(kFinishedTitle));
}

void PrintWindow::ReportJobFailure(const RunTimeError& error) {
  const bool notFound = error.Number() == ErrorNumber::kAutomationClassNotFound;
  print.SetEnabled(false);
  app_.machine.messages.Show(notFound ? u"Printing requires Excel 97." : Text(kUnspecifiedError),
                             kStopIcon, u"Error Printing Cards");
}

}  // namespace tessara
