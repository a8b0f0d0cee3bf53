#pragma once

#include "companion/cards/card_set.h"
#include "companion/formats/source_and_sink.h"

namespace tessara {

/// The cards of a table of RFC 4180, separated by commas or by semicolons, whichever the first line
/// has more of.
[[nodiscard]] CardSet ReadCsv(const Source& source, const Conversion& conversion);

/// Writes a table with the names of its columns, in UTF-8 behind the signature, lines ending in
/// CR LF.
void WriteCsv(const CardsToWrite& deck, ByteSink& sink, const Conversion& conversion);

}  // namespace tessara
