#include "printing/print_copies.h"

#include "machine/message_box.h"
#include "machine/print_surface.h"

namespace tessara {

namespace {

bool WantsCopy(Machine& machine, int copy, int copies) {
  return machine.messages.Show(u"Perparing to print copy # " + DecimalText(copy) + u" of " +
                                   DecimalText(copies) + u", do want to continue?",
                               kQuestionIcon + kYesNo, u"Print Cards") == MessageAnswer::kYes;
}

}  // namespace

PrinterChoice ChoosePrinter(Machine& machine) {
  PrinterChoice choice = machine.dialogs.AskPrinter();
  PrintSurface& surface = machine.printer.Surface();
  surface.SetDestination(choice.destination);
  surface.SetCopies(1);
  return choice;
}

void PrintCopies(Machine& machine, int copies, const std::function<void()>& pass) {
  for (int copy = 1; copy <= copies; ++copy) {
    if (copy > 1 && !WantsCopy(machine, copy, copies)) return;
    pass();
  }
}

void TellCancelled(Machine& machine) {
  machine.messages.Show(u"Printing was cancelled", kOkOnly, u"Cancel Printing");
}

}  // namespace tessara
