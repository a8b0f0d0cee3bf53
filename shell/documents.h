#pragma once

#include "machine/machine.h"

namespace tessara {

/// Declares the deck file type to the desktop, once in the life of the user's settings: marks
/// the first load as done even where nothing could be declared. Silent.
void RegisterDocumentType(const Machine& machine);

/// Opens a file with its registered program and reports a missing one. Returns the result code;
/// other failures are told by it alone.
int OpenWithShell(const Text& path, const Machine& machine);

/// The program's own documents, in its folder. No command opens them.
int OpenTearingSheet(const Machine& machine);
int OpenQuickStart(const Machine& machine);

/// Opens an address of mail.
void SendMailTo(const Text& address, const Machine& machine);

}  // namespace tessara
