#pragma once

#include "machine/machine.h"

namespace tessara {

/// Declares the deck file type to the desktop, once in the life of the user's settings: marks
/// the first load as done even where nothing could be declared. Silent.
void RegisterDocumentType(const Machine& machine);

}  // namespace tessara
