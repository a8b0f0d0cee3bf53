#pragma once

#include "companion/cards/card_set.h"
#include "companion/cards/complaints.h"
#include "companion/formats/source_and_sink.h"

namespace tessara {

/// The entries of a vocabulary file of KDE, version 2, in their order: the first two languages are
/// the sides of a card. Its bytes are used up. Raises Refused for what is no such file.
[[nodiscard]] CardSet ReadKvtml(Source& source, const Conversion& conversion);

/// Writes text cards as a vocabulary file of KDE, version 2, with two languages. Raises Refused for
/// questions.
void WriteKvtml(const CardsToWrite& deck, ByteSink& sink, const Conversion& conversion);

// A vocabulary file has dates as "2026-11-22", a deck as "11/22/2026". What is neither stays as it
// is.

[[nodiscard]] Text DeckDateOf(const Text& kvtmlDate);
[[nodiscard]] Text KvtmlDateOf(const Text& deckDate);

}  // namespace tessara
