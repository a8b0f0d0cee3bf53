#pragma once

#include "companion/cards/card_set.h"
#include "companion/cards/complaints.h"
#include "companion/formats/source_and_sink.h"
#include "import/cards_reading.h"

namespace tessara {

// The text of cards, as the program imports it.

/// The program's reader for the format that the first line names; null where it names none.
[[nodiscard]] CardsReader ReaderOf(const Source& source, const CodePage& codePage);

/// The cards of a text, as the program imports it. Raises Refused where it does not.
[[nodiscard]] CardSet ReadImportText(const Source& source, const Conversion& conversion);

/// Writes at most 200 cards as the text that the program imports to the same cards, in
/// the code page where that holds them all, else in UTF-8 behind the signature. Lines end in CR LF.
/// Tells what the text can't hold.
void WriteImportText(const CardsToWrite& deck, ByteSink& sink, const Conversion& conversion);

/// Tells all that the program's import would stop at or pass over in silence.
void CheckImportText(const Source& source, const CodePage& codePage, Findings& findings);

}  // namespace tessara
