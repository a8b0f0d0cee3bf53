#pragma once

#include <functional>

#include "base/text.h"
#include "machine/dialogs.h"
#include "machine/machine.h"

namespace tessara {

/// Asks for the printer and the copies, and turns the print surface to it. Copies are made by
/// printing again: the printer's own count is 1. Raises 32755 on a cancel, 482.
PrinterChoice ChoosePrinter(Machine& machine);

/// Runs the pass once for each copy. Before each but the first the user is asked; a No ends it.
void PrintCopies(Machine& machine, int copies, const std::function<void()>& pass);

/// The title of the box that tells that a job has come to its end.
inline constexpr TextView kFinishedTitle = u"PRINT";

/// What is told where the error itself says nothing to the user.
inline constexpr TextView kUnspecifiedError =
    u"An unspecified printing error has occured. Ensure that the printer is ready.";

/// The box for a cancel and for most errors of printing.
void TellCancelled(Machine& machine);

}  // namespace tessara
