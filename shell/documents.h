#pragma once

#include "machine/machine.h"

namespace tessara {

/// Opens a file with its registered program and reports a missing one. Returns the result code;
/// other failures are told by it alone.
int OpenWithShell(const Text& path, const Machine& machine);

/// The program's own documents, in its folder.
int OpenTearingSheet(const Machine& machine);
int OpenQuickStart(const Machine& machine);

/// Opens an address of mail.
void SendMailTo(const Text& address, const Machine& machine);

}  // namespace tessara
