#pragma once

#include <cstdint>

#include "base/text.h"
#include "deck/program_state.h"
#include "import/import_common.h"
#include "import/line_reader.h"
#include "machine/message_box.h"

namespace tessara {

/// Makes a deck from a text of cards with a front and a back: the whole import from the file to
/// the deck on show or to the message that tells why not.
void ImportStandard(const Text& fileName, const ImportContext& context);

/// Reads cards with a front and a back into the table.
[[nodiscard]] bool ReadStandardCards(LineReader& lines, const ImportContext& context);

/// True for a line that is a number with an early dot, as it stands and in all of it.
[[nodiscard]] bool IsCardNumberLine(TextView line);
/// True where the card may follow the last finished one or is the one being read, else tells.
[[nodiscard]] bool CheckStdSequence(std::int16_t card, std::int16_t previous,
                                    MessageBoxes& messages);
/// Stores a card in its row. True. Raises error 9 beyond the table.
bool StoreStdCard(std::int16_t card, const Text& front, const Text& back, ProgramState& state);

}  // namespace tessara
