#pragma once

#include "companion/cards/card_set.h"
#include "companion/formats/source_and_sink.h"

namespace tessara {

/// The cards of a deck file, as the program loads it. Raises Refused where it does not.
[[nodiscard]] CardSet ReadDeck(const Source& source, const Conversion& conversion);

/// Writes a deck file of at most 200 cards. Tells what their fields can't hold.
void WriteDeck(const CardsToWrite& deck, ByteSink& sink, const Conversion& conversion);

/// Tells all that is wrong with a deck file, record by record: numbers, types, holes, answers, and
/// texts that were perhaps cut.
void CheckDeck(const Source& source, const CodePage& codePage, Findings& findings);

}  // namespace tessara
