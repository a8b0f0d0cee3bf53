#pragma once

#include "companion/cards/card_set.h"
#include "companion/formats/source_and_sink.h"

namespace tessara {

/// The cards of lines with tabs between the fields, or with what a comment line at the top names.
[[nodiscard]] CardSet ReadTsv(const Source& source, const Conversion& conversion);

/// Comment lines that tell a card program how the file is to be read.
enum class TsvComments { kNone, kWritten };

/// Writes lines with tabs between the fields, in UTF-8, ending in LF.
void WriteTsv(const CardsToWrite& deck, ByteSink& sink, const Conversion& conversion,
              TsvComments comments);

}  // namespace tessara
