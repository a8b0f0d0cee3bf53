#pragma once

#include <cstdint>

#include "base/text.h"
#include "deck/program_state.h"
#include "import/cards_reading.h"
#include "import/import_common.h"

namespace tessara {

/// Makes a deck from a text of question cards: the whole import from the file to the deck on show
/// or to the message that tells why not.
void ImportExtended(const Text& fileName, const ImportContext& context);

/// Reads question cards into the table.
[[nodiscard]] bool ReadExtendedCards(CardsReading& reading);

/// Stores a question in the card's row. False, which is told, where the card is out of sequence.
/// Raises error 9 beyond the table.
[[nodiscard]] bool StoreExtCard(std::int16_t card, std::int16_t previous, TextView text,
                                CardsReading& reading);
/// Stores an answer choice. False, which is told, where its letter goes backward. An unknown
/// letter's choice goes to the stray column.
[[nodiscard]] bool StoreExtChoice(std::int16_t card, TextView letter, TextView lastLetter,
                                  TextView text, CardsReading& reading);
/// Stores the last character of the line, which is not empty, as the answer, and the card type it
/// tells. False where it is none.
[[nodiscard]] bool StoreExtAnswer(std::int16_t card, TextView line, ProgramState& state);

/// The card being read is finished.
void ResetChoiceLetters(ProgramState& state);

}  // namespace tessara
