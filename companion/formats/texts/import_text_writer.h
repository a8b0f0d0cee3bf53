#pragma once

#include "companion/cards/card_set.h"
#include "companion/formats/byte_sink.h"
#include "companion/formats/source.h"

namespace tessara {

/// Writes at most 200 cards as the text that the program imports to the same cards, in
/// the code page where that holds them all, else in UTF-8 behind the signature. Lines end in CR LF.
/// Tells what the text can't hold.
void WriteImportText(const CardsToWrite& deck, ByteSink& sink, const Conversion& conversion);

}  // namespace tessara
