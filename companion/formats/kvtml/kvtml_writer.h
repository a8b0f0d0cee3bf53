#pragma once

#include "companion/cards/card_set.h"
#include "companion/formats/byte_sink.h"
#include "companion/formats/source.h"

namespace tessara {

/// Writes text cards as a vocabulary file of KDE, version 2, with two languages. Raises Refused for
/// questions.
void WriteKvtml(const CardsToWrite& deck, ByteSink& sink, const Conversion& conversion);

}  // namespace tessara
