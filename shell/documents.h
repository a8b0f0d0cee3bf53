#pragma once

#include "forms/form.h"
#include "machine/desktop.h"
#include "machine/machine.h"

namespace tessara {

/// Opens a file with its registered program and reports a missing one. Returns the result code;
/// other failures are told by it alone.
int OpenWithShell(const Text& path, const Machine& machine);

/// The program's own documents, in its folder.
int OpenTearingSheet(const Machine& machine);
int OpenQuickStart(const Machine& machine);

/// Opens an address of mail on behalf of the window.
void SendMailTo(const Form& form, const Text& address, ShowState showCommand,
                const Machine& machine);

}  // namespace tessara
