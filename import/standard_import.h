#pragma once

#include <cstdint>

#include "base/text.h"
#include "deck/program_state.h"
#include "import/cards_reading.h"
#include "import/import_common.h"

namespace tessara {

/// What stands before the lines of a side, and behind the last card.
inline constexpr TextView kFrontTag = u"*>F";
inline constexpr TextView kBackTag = u"*>B";
inline constexpr TextView kEndWord = u"*END*";

/// Makes a deck from a text of cards with a front and a back: the whole import from the file to
/// the deck on show or to the message that tells why not.
void ImportStandard(const Text& fileName, const ImportContext& context);

/// Reads cards with a front and a back into the table.
[[nodiscard]] bool ReadStandardCards(CardsReading& reading);

/// True for a line that is a number with an early dot, as it stands and in all of it.
[[nodiscard]] bool IsCardNumberLine(TextView line);
/// Stores a card in its row. True. Raises error 9 beyond the table.
bool StoreStdCard(std::int16_t card, const Text& front, const Text& back, ProgramState& state);

}  // namespace tessara
