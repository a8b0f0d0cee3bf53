#pragma once

#include "deck/program_state.h"
#include "machine/message_box.h"

namespace tessara {

/// True where the path ends in "tsr", exactly; otherwise says so.
[[nodiscard]] bool IsDeckFileName(const Text& fileName, MessageBoxes& messages);

/// As above, and otherwise empties the deck's path too. The content of the file is not
/// examined.
[[nodiscard]] bool IsDeckFileName(const Text& fileName, ProgramState& state,
                                  MessageBoxes& messages);

/// True where the deck of that name is the one that the deck window's caption names; says so.
/// Folders are not compared.
[[nodiscard]] bool DeckAlreadyOpen(const Text& fileName, TextView caption, MessageBoxes& messages);

/// True where the deck has no first card and so can't be saved; says so.
[[nodiscard]] bool EmptyDeckRefused(const ProgramState& state, MessageBoxes& messages);

}  // namespace tessara
